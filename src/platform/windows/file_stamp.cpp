#include "platform/file_stamp.h"

#include "platform/windows/system_path.h"

#include <ctime>
#include <windows.h>

namespace kestrum {

std::optional<File_Stamp> Settled_Stamp(const std::string& path) {
    const HANDLE file = ::CreateFileW(System_Path(path).c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    FILE_BASIC_INFO times{};
    BY_HANDLE_FILE_INFORMATION facts{};
    const bool known =
        ::GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof times) != 0 &&
        ::GetFileInformationByHandle(file, &facts) != 0;
    ::CloseHandle(file);
    // In steps of 100 nanoseconds since 1601.
    constexpr std::int64_t steps = 10'000'000;
    constexpr std::int64_t seconds_to_1970 = 11'644'473'600;
    constexpr std::int64_t seconds_to_settle = 2;
    constexpr unsigned half = 32;
    const std::int64_t changed = times.ChangeTime.QuadPart;
    const std::int64_t seconds = changed / steps - seconds_to_1970;
    if (!known || std::time(nullptr) - seconds < seconds_to_settle) {
        return std::nullopt;
    }
    const std::uint64_t size = std::uint64_t{facts.nFileSizeHigh} << half | facts.nFileSizeLow;
    return File_Stamp{.file = std::uint64_t{facts.nFileIndexHigh} << half | facts.nFileIndexLow,
                      .size = static_cast<std::int64_t>(size),
                      .changed_seconds = seconds,
                      .changed_nanoseconds = changed % steps * 100};
}

} // namespace kestrum
