#include "platform/saving_steps.h"

#include "base/run_time_error.h"
#include "platform/file_store.h"
#include "platform/windows/system_path.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace kestrum {

namespace {

constexpr DWORD all_may = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Of_System(const Open_File& file) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(file.Handle()));
}

/// The path behind all links, for a file that is there; else as it stands.
std::string Behind_Links(const std::string& path) {
    const HANDLE file = ::CreateFileW(System_Path(path).c_str(), FILE_READ_ATTRIBUTES, all_may,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return path;
    }
    constexpr std::size_t longest_path = 32768;
    std::wstring real(longest_path, L'\0');
    real.resize(::GetFinalPathNameByHandleW(file, real.data(), static_cast<DWORD>(real.size()),
                                            FILE_NAME_NORMALIZED));
    ::CloseHandle(file);
    return real.empty() ? path : Narrow_Text(real);
}

bool Is_Link(DWORD kind) {
    return kind != INVALID_FILE_ATTRIBUTES && (kind & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// Whether the file may be written, and how many names it bears.
void Look_At(Save_Target& target) {
    const HANDLE file = ::CreateFileW(System_Path(target.path).c_str(), GENERIC_WRITE, all_may,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        Fail_With_System_Error(static_cast<int>(::GetLastError()));
    }
    BY_HANDLE_FILE_INFORMATION facts{};
    target.has_other_names =
        ::GetFileInformationByHandle(file, &facts) != 0 && facts.nNumberOfLinks > 1;
    ::CloseHandle(file);
}

/// Does what somebody else may be in the way of for a moment, such as one who reads the file to
/// look for viruses. Raises what the system reports in the end.
template <typename Step>
void Try_For_A_While(const Step& step) {
    constexpr int most_tries = 100;
    constexpr DWORD moment = 10; // milliseconds
    for (int tries = 1; step() == 0; ++tries) {
        const DWORD failure = ::GetLastError();
        const bool may_pass = failure == ERROR_SHARING_VIOLATION ||
                              failure == ERROR_ACCESS_DENIED || failure == ERROR_LOCK_VIOLATION ||
                              failure == ERROR_UNABLE_TO_REMOVE_REPLACED;
        if (!may_pass || tries == most_tries) {
            Fail_With_System_Error(static_cast<int>(failure));
        }
        ::Sleep(moment);
    }
}

} // namespace

Save_Target Target_Of(const std::string& path) {
    Refuse_Forbidden_Name(path);
    const bool is_link = Is_Link(::GetFileAttributesW(System_Path(path).c_str()));
    Save_Target target;
    target.path = is_link ? Behind_Links(path) : path;
    target.name = Bare_Name(target.path);
    // With the separator, which the folder of a whole disk cannot do without.
    target.folder = target.path.substr(0, target.path.size() - target.name.size());
    const DWORD above = ::GetFileAttributesW(System_Path(Join_Path(target.folder, ".")).c_str());
    if (above == INVALID_FILE_ATTRIBUTES || (above & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        Fail(error::path_not_found);
    }
    const DWORD kind = ::GetFileAttributesW(System_Path(target.path).c_str());
    target.exists = kind != INVALID_FILE_ATTRIBUTES;
    target.attributes = kind;
    // A link is left only where it leads to nothing.
    if (target.name.empty() ||
        (target.exists && ((kind & FILE_ATTRIBUTE_DIRECTORY) != 0 || Is_Link(kind)))) {
        Fail(error::path_or_file_access);
    }
    // A file that may not be written is not replaced either.
    if (target.exists && (kind & FILE_ATTRIBUTE_READONLY) != 0) {
        Fail(error::permission_denied);
    }
    if (target.exists) {
        Look_At(target);
    }
    return target;
}

void Take_Over_Rights(const Open_File& made, const Save_Target& target) {
    const std::wstring old = System_Path(target.path);
    DWORD size = 0;
    ::GetFileSecurityW(old.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::string rights(size, '\0');
    // A disk that keeps no rights has none to hand on.
    if (::GetFileSecurityW(old.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) !=
        0) {
        ::SetKernelObjectSecurity(Of_System(made), DACL_SECURITY_INFORMATION, rights.data());
    }
    constexpr DWORD marks =
        FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    FILE_BASIC_INFO facts{}; // 0 leaves the times as they are
    facts.FileAttributes = (target.attributes & marks) | FILE_ATTRIBUTE_ARCHIVE;
    ::SetFileInformationByHandle(Of_System(made), FileBasicInfo, &facts, sizeof facts);
}

void Put_In_Place(const std::string& path, const Save_Target& target) {
    // Not ReplaceFileW, which takes the old file away first: a kill in between leaves no file.
    const std::wstring from = System_Path(path);
    const std::wstring to = System_Path(target.path);
    Try_For_A_While([&] {
        return ::MoveFileExW(from.c_str(), to.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
}

void Flush_Folder(const std::string& /*folder*/) {
    // The system keeps a journal of its names.
}

int Handle_To_Change(const Save_Target& target) {
    const HANDLE file =
        ::CreateFileW(System_Path(target.path).c_str(), GENERIC_READ | GENERIC_WRITE, all_may,
                      nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    return file == INVALID_HANDLE_VALUE
               ? -1
               : ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
}

void Wait_For_Turn(const Open_File& file) {
    constexpr int most_tries = 200;
    constexpr DWORD moment = 10; // milliseconds
    OVERLAPPED far_behind{};     // a lock on what is there would keep readers out
    far_behind.OffsetHigh = 1U << 30U;
    for (int tries = 0;
         tries < most_tries &&
         ::LockFileEx(Of_System(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                      &far_behind) == 0;
         ++tries) {
        ::Sleep(moment);
    }
}

void Go_To_Front(const Open_File& file) {
    if (::SetFilePointerEx(Of_System(file), {}, nullptr, FILE_BEGIN) == 0) {
        Fail_With_System_Error(static_cast<int>(::GetLastError()));
    }
}

void Cut_Here(const Open_File& file) {
    if (::SetEndOfFile(Of_System(file)) == 0) {
        Fail_With_System_Error(static_cast<int>(::GetLastError()));
    }
}

} // namespace kestrum
