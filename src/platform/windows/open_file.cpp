#include "platform/open_file.h"

#include "base/run_time_error.h"
#include "platform/windows/system_path.h"

#include <algorithm>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace kestrum {

namespace {

/// Others may do with the file what they like meanwhile, as on other systems.
constexpr DWORD all_may = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

constexpr int quota_exceeded = 1295; // not in the headers of every compiler

HANDLE Of_System(int handle) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(handle));
}

/// The number by which the library of C knows a file.
int Number_Of(HANDLE file) {
    const int handle = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
    if (handle < 0) {
        ::CloseHandle(file);
        Fail(error::path_or_file_access);
    }
    return handle;
}

int Number_For(int system_error) {
    switch (system_error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return error::file_not_found;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return error::permission_denied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case quota_exceeded:
    case ERROR_FILE_TOO_LARGE:
        return error::disk_full;
    default:
        return error::path_or_file_access;
    }
}

[[noreturn]] void Fail_With_Last_Error() {
    Fail_With_System_Error(static_cast<int>(::GetLastError()));
}

/// A path that leads through a file is another failure than one to nothing.
[[noreturn]] void Fail_To_Open(const std::wstring& path) {
    const DWORD failure = ::GetLastError();
    const DWORD kind = ::GetFileAttributesW(path.c_str());
    if (kind != INVALID_FILE_ATTRIBUTES && (kind & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        Fail(error::path_or_file_access);
    }
    const std::wstring above = path.substr(0, path.find_last_of(L"/\\"));
    const DWORD above_kind = ::GetFileAttributesW(above.c_str());
    if (failure == ERROR_PATH_NOT_FOUND && above_kind != INVALID_FILE_ATTRIBUTES &&
        (above_kind & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        Fail(error::path_not_found);
    }
    Fail_With_System_Error(static_cast<int>(failure));
}

} // namespace

void Fail_With_System_Error(int system_error) {
    Fail(Number_For(system_error));
}

Open_File::Open_File(int handle) : handle_(handle) {
    if (handle_ < 0) {
        Fail_With_Last_Error();
    }
}

Open_File::~Open_File() {
    if (handle_ >= 0) {
        ::_close(handle_);
    }
}

std::uint64_t Open_File::Size() const {
    LARGE_INTEGER size{};
    if (::GetFileSizeEx(Of_System(handle_), &size) == 0) {
        Fail_With_Last_Error();
    }
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::string Open_File::Piece(std::uint64_t offset, std::size_t bytes) const {
    std::string piece(bytes, '\0');
    std::size_t filled = 0;
    while (filled < bytes) {
        OVERLAPPED place{};
        constexpr unsigned half = 32;
        place.Offset = static_cast<DWORD>(offset + filled);
        place.OffsetHigh = static_cast<DWORD>((offset + filled) >> half);
        DWORD got = 0;
        if (::ReadFile(Of_System(handle_), piece.data() + filled,
                       static_cast<DWORD>(bytes - filled), &got, &place) == 0 &&
            ::GetLastError() != ERROR_HANDLE_EOF) {
            Fail_With_Last_Error();
        }
        if (got == 0) {
            break;
        }
        filled += got;
    }
    piece.resize(filled);
    return piece;
}

void Open_File::Write_All(std::string_view content) const {
    constexpr std::size_t most_at_once = std::size_t{1} << 26U;
    while (!content.empty()) {
        DWORD written = 0;
        const auto asked = static_cast<DWORD>(std::min(content.size(), most_at_once));
        if (::WriteFile(Of_System(handle_), content.data(), asked, &written, nullptr) == 0) {
            Fail_With_Last_Error();
        }
        if (written == 0) {
            Fail(error::disk_full);
        }
        content.remove_prefix(written);
    }
}

void Open_File::Flush() const {
    if (::FlushFileBuffers(Of_System(handle_)) == 0) {
        Fail_With_Last_Error();
    }
}

void Open_File::Close() {
    const int closing = handle_;
    handle_ = -1;
    if (::_close(closing) != 0) {
        Fail_With_Last_Error();
    }
}

Open_File Open_To_Read(const std::string& path) {
    Refuse_Forbidden_Name(path);
    const std::wstring name = System_Path(path);
    const HANDLE file = ::CreateFileW(name.c_str(), GENERIC_READ, all_may, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        Fail_To_Open(name);
    }
    if (::GetFileType(file) != FILE_TYPE_DISK) {
        ::CloseHandle(file);
        Fail(error::path_or_file_access);
    }
    return Open_File(Number_Of(file));
}

int Handle_Of_New_File(const std::string& path, bool /*secret: the folder tells who may*/) {
    Refuse_Forbidden_Name(path);
    // What is written goes on to the disk: only administrators may flush all of it.
    const HANDLE file =
        ::CreateFileW(System_Path(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE | WRITE_DAC,
                      all_may, nullptr, CREATE_NEW, FILE_FLAG_WRITE_THROUGH, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        return Number_Of(file);
    }
    const DWORD failure = ::GetLastError();
    if (failure == ERROR_FILE_EXISTS || failure == ERROR_ALREADY_EXISTS) {
        return -1;
    }
    if (failure == ERROR_PATH_NOT_FOUND || failure == ERROR_FILE_NOT_FOUND) {
        Fail(error::path_not_found); // the folder, for the file is to be made
    }
    Fail_With_System_Error(static_cast<int>(failure));
}

} // namespace kestrum
