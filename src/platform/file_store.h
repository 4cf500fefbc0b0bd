#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// Joins a folder and a name with the platform's separator.
[[nodiscard]] std::string Join_Path(std::string_view folder, std::string_view name);

/// A path without the folder and the separator when it lies below the folder, else its bare name.
[[nodiscard]] std::string Name_In_Folder(std::string_view folder, const std::string& path);

/// Whether a name names its folder too.
[[nodiscard]] bool Holds_Separator(std::string_view name);

/// The last part of a path, without its folder, and the folder, without the separator.
[[nodiscard]] std::string Bare_Name(std::string_view path);
[[nodiscard]] std::string Folder_Of(std::string_view path);

/// The names of all that lies in a folder, in no order; those read so far when it cannot be read.
[[nodiscard]] std::vector<std::string> Names_In_Folder(const std::string& folder);

/// Finds a file: as it stands first, then without regard to case in every part of its path (an
/// exact match is preferred, then the first in byte order). Gives the path as it stands when
/// nothing fits, and where the system itself looks without regard to case.
[[nodiscard]] std::string Find_Case_Blind(const std::string& path);

[[nodiscard]] bool File_Exists(const std::string& path);
/// Whether there is a file, and no folder, that may be read.
[[nodiscard]] bool Can_Be_Read(const std::string& path);

/// Whether files can be made in a folder.
[[nodiscard]] bool May_Write_In(const std::string& folder);

/// Makes a folder with all above it; false when it cannot be had. One that is there is fine.
[[nodiscard]] bool Make_Folder(const std::string& path);
/// Gives a file another name, over one that bears it, as far as that can be done.
void Move_File(const std::string& from, const std::string& to);
/// When a file was last written, in local time, as "2026-11-22 21:15:00"; empty when unknown.
[[nodiscard]] std::string Time_Of_File(const std::string& path);
/// The same in universal time, as "2026-11-22T21:15:00Z".
[[nodiscard]] std::string Utc_Time_Of_File(const std::string& path);

/// No text file of the program comes near this size, and none above it is read or written: a wrong
/// file must not cost all the memory.
inline constexpr std::size_t most_text_bytes = std::size_t{16} * 1024 * 1024;

/// The whole content of a text file. Raises 53, 70, 75 or 76; 75 also for what is no regular file
/// and for one above the size that text files have.
[[nodiscard]] std::string Read_Whole_File(const std::string& path);

/// Puts a text under a name in one step, as `Replace_File` does. Raises its errors, and 75 for a
/// text above the size that could be read back.
void Write_Whole_File(const std::string& path, std::string_view content);

/// Puts a content of any size under a name in one step: a new file beside the target is written,
/// flushed to the disk and renamed over it. Rights and owner of an old file are kept where that is
/// allowed. Through a link the file that it points to is written; one that has several names keeps
/// them. When anything fails, the old file stays whole and what this call made is removed. Raises
/// 61, 70, 75 or 76.
void Replace_File(const std::string& path, std::string_view content);

} // namespace kestrum
