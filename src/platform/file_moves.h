#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrum {

// Names of files that go and change. Nothing here raises.

/// Removes a file; false when it still bears its name.
bool Remove_File(const std::string& path);

/// Removes a folder in which nothing lies; any other stays as it is.
void Remove_Empty_Folder(const std::string& path);

enum class Rename_Outcome { Done, Name_Taken, Failed };

/// Gives a file another name, never over one that bears it.
[[nodiscard]] Rename_Outcome Rename_Without_Loss(const std::string& from, const std::string& to);

/// Moves a file into a folder under a name that nothing there bears: its own, or the same with
/// "-2", "-3" and so on before the extension. Gives the path it has then, empty when it stays.
[[nodiscard]] std::string Move_To_Fresh_Name(const std::string& path, std::string_view folder);

/// Since 1970 began in universal time.
struct File_Time {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0; // less than a second
};

/// When a file was last written; nothing when unknown.
[[nodiscard]] std::optional<File_Time> Last_Write(const std::string& path);

/// The same in nanoseconds since 1970; 0 when unknown.
[[nodiscard]] std::int64_t Moment_Of_File(const std::string& path);

} // namespace kestrum
