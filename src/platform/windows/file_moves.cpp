#include "platform/file_moves.h"

#include "platform/windows/system_path.h"

#include <windows.h>

namespace kestrum {

bool Remove_File(const std::string& path) {
    if (::DeleteFileW(System_Path(path).c_str()) != 0) {
        return true;
    }
    const DWORD failure = ::GetLastError();
    return failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND;
}

void Remove_Empty_Folder(const std::string& path) {
    ::RemoveDirectoryW(System_Path(path).c_str());
}

Rename_Outcome Rename_Without_Loss(const std::string& from, const std::string& to) {
    // One that moves to its own name is told that it has done so.
    if (::GetFileAttributesW(System_Path(to).c_str()) != INVALID_FILE_ATTRIBUTES) {
        return Rename_Outcome::Name_Taken;
    }
    if (!Has_Forbidden_Name(to) && ::MoveFileExW(System_Path(from).c_str(), System_Path(to).c_str(),
                                                 MOVEFILE_WRITE_THROUGH) != 0) {
        return Rename_Outcome::Done;
    }
    const DWORD failure = ::GetLastError();
    return failure == ERROR_ALREADY_EXISTS || failure == ERROR_FILE_EXISTS
               ? Rename_Outcome::Name_Taken
               : Rename_Outcome::Failed;
}

std::optional<File_Time> Last_Write(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA facts{};
    if (::GetFileAttributesExW(System_Path(path).c_str(), GetFileExInfoStandard, &facts) == 0) {
        return std::nullopt;
    }
    // In steps of 100 nanoseconds since 1601.
    constexpr std::int64_t steps = 10'000'000;
    constexpr std::int64_t seconds_to_1970 = 11'644'473'600;
    constexpr unsigned half = 32;
    const auto time =
        static_cast<std::int64_t>(std::uint64_t{facts.ftLastWriteTime.dwHighDateTime} << half |
                                  facts.ftLastWriteTime.dwLowDateTime);
    return File_Time{.seconds = time / steps - seconds_to_1970, .nanoseconds = time % steps * 100};
}

} // namespace kestrum
