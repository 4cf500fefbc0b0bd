#pragma once

#include <string>
#include <string_view>

namespace kestrum {

/// Writes a file that is not there yet, without waiting for the disk. Gives false, with nothing
/// done, when the name is taken. Raises 61, 70, 75 or 76; no piece of a file is left then.
[[nodiscard]] bool Write_New_File(const std::string& path, std::string_view content);

/// Waits until the disk that holds a folder has all that was written to it. Raises 75.
void Flush_Disk_Of(const std::string& folder);

} // namespace kestrum
