#include "platform/writing_program.h"

#include "base/byte_digest.h"
#include "platform/windows/system_path.h"

#include <array>
#include <windows.h>

namespace kestrum {

namespace {

/// When a process began, in the system's steps; 0 when it does not say.
std::uint64_t Start_Of(HANDLE process) {
    FILETIME began{};
    FILETIME other{};
    constexpr unsigned half = 32;
    return ::GetProcessTimes(process, &began, &other, &other, &other) == 0
               ? 0
               : std::uint64_t{began.dwHighDateTime} << half | began.dwLowDateTime;
}

/// One number for this machine; the moment at which a process began tells its runs apart.
std::uint64_t This_System() {
    std::array<wchar_t, 256> name{};
    auto length = static_cast<DWORD>(name.size());
    ::GetComputerNameExW(ComputerNamePhysicalDnsHostname, name.data(), &length);
    return Digest_Of({reinterpret_cast<const char*>(name.data()), sizeof name}); // NOLINT(*-cast)
}

} // namespace

Writing_Program This_Program() {
    return {.process = ::GetCurrentProcessId(),
            .start = Start_Of(::GetCurrentProcess()),
            .system = This_System()};
}

bool Is_Dead(const Writing_Program& program) {
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE,
                                         static_cast<DWORD>(program.process));
    if (process == nullptr) {
        return ::GetLastError() == ERROR_INVALID_PARAMETER; // there is none of this number
    }
    const bool has_ended = ::WaitForSingleObject(process, 0) == WAIT_OBJECT_0;
    const bool is_another = Start_Of(process) != program.start;
    ::CloseHandle(process);
    return has_ended || is_another;
}

bool Is_File_Of_User(const std::string& path) {
    // Whose a file is says little here: one that may not be removed stays.
    const HANDLE file =
        ::CreateFileW(System_Path(path).c_str(), FILE_READ_ATTRIBUTES,
                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    BY_HANDLE_FILE_INFORMATION facts{};
    const bool known = ::GetFileInformationByHandle(file, &facts) != 0;
    ::CloseHandle(file);
    constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return known && (facts.dwFileAttributes & others) == 0 && facts.nNumberOfLinks == 1;
}

} // namespace kestrum
