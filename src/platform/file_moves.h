#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrum {

// Names of files that go and change. Nothing here raises.

/// Removes a file; false when it still bears its name.
bool Remove_File(const std::string& path);

/// Removes a folder in which nothing lies; any other stays as it is.
void Remove_Empty_Folder(const std::string& path);

/// Moves a file into a folder under a name that nothing there bears: its own, or the same with
/// "-2", "-3" and so on before the extension. Gives the path it has then, empty when it stays.
[[nodiscard]] std::string Move_To_Fresh_Name(const std::string& path, std::string_view folder);

/// When a file was last written, in nanoseconds since 1970; 0 when unknown.
[[nodiscard]] std::int64_t Moment_Of_File(const std::string& path);

} // namespace kestrum
