#pragma once

#include <atomic>

namespace kestrum {

/// How long each flush of a file takes in this program, where a test can have a slow disk.
extern std::atomic<int> slow_disk_milliseconds;

} // namespace kestrum
