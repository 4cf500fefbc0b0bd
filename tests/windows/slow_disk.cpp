#include "tests/slow_disk.h"

namespace kestrum {

std::atomic<int> slow_disk_milliseconds = 0;

} // namespace kestrum
