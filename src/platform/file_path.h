#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrum {

/// A path of the standard library for one of ours, which is UTF-8: given as plain text it would be
/// read by the old code page of some systems.
[[nodiscard]] std::filesystem::path File_Path(std::string_view path);

/// The other way.
[[nodiscard]] std::string Text_Of(const std::filesystem::path& path);

} // namespace kestrum
