#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrum {

/// A path of the standard library for one of ours, which is UTF-8: given as plain text it would be
/// read by the old code page of some systems.
[[nodiscard]] inline std::filesystem::path File_Path(std::string_view path) {
    return std::u8string(path.begin(), path.end());
}

} // namespace kestrum
