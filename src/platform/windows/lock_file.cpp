#include "platform/lock_file.h"

#include "platform/windows/system_path.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace kestrum {

namespace {

bool Is_Same_File(HANDLE one, HANDLE other) {
    BY_HANDLE_FILE_INFORMATION first{};
    BY_HANDLE_FILE_INFORMATION second{};
    return ::GetFileInformationByHandle(one, &first) != 0 &&
           ::GetFileInformationByHandle(other, &second) != 0 &&
           first.dwVolumeSerialNumber == second.dwVolumeSerialNumber &&
           first.nFileIndexHigh == second.nFileIndexHigh &&
           first.nFileIndexLow == second.nFileIndexLow;
}

HANDLE Opened(const std::string& path, DWORD rights, DWORD way) {
    constexpr DWORD all_may = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return ::CreateFileW(System_Path(path).c_str(), rights, all_may, nullptr, way,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool Lock(HANDLE file) {
    OVERLAPPED front{};
    return ::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                        &front) != 0;
}

} // namespace

Lock_File::~Lock_File() {
    Release();
}

bool Lock_File::Take(const std::string& path) {
    Release();
    path_ = path;
    const HANDLE file = Opened(path, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    handle_ = ::_open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
    if (handle_ < 0) {
        ::CloseHandle(file);
        return false;
    }
    if (!Lock(file) || !Is_Held()) {
        Release();
        return false;
    }
    return true;
}

bool Lock_File::Is_Held() const {
    if (handle_ < 0) {
        return false;
    }
    const HANDLE named = Opened(path_, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (named == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool is_same = Is_Same_File(reinterpret_cast<HANDLE>(::_get_osfhandle(handle_)), named);
    ::CloseHandle(named);
    return is_same;
}

void Lock_File::Release() {
    if (handle_ >= 0) {
        ::_close(handle_);
        handle_ = -1;
    }
}

} // namespace kestrum
