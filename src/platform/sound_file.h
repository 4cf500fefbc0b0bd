#pragma once

#include <string>

namespace kestrum {

/// Whether a file is there and begins as a wave file does; never raises.
[[nodiscard]] bool Is_Sound_File(const std::string& path);

} // namespace kestrum
