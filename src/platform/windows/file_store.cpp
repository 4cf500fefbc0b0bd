#include "platform/file_store.h"

#include "platform/windows/system_path.h"

#include <windows.h>

namespace kestrum {

namespace {

bool Is_Folder(const std::wstring& path) {
    const DWORD kind = ::GetFileAttributesW(path.c_str());
    return kind != INVALID_FILE_ATTRIBUTES && (kind & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace

std::string Join_Path(std::string_view folder, std::string_view name) {
    constexpr std::string_view ends = "/\\:";
    const bool stands_alone =
        name.starts_with('/') || name.starts_with('\\') || (name.size() > 1 && name[1] == ':');
    if (stands_alone || folder.empty()) {
        return std::string(name);
    }
    const bool has_separator = ends.find(folder.back()) != std::string_view::npos;
    return std::string(folder) + (has_separator ? "" : "\\") + std::string(name);
}

std::string Find_Case_Blind(const std::string& path) {
    return path;
}

bool File_Exists(const std::string& path) {
    return !path.empty() && !Has_Forbidden_Name(path) &&
           ::GetFileAttributesW(System_Path(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool Can_Be_Read(const std::string& path) {
    if (Has_Forbidden_Name(path)) {
        return false;
    }
    const HANDLE file = ::CreateFileW(System_Path(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false; // a folder among others
    }
    ::CloseHandle(file);
    return true;
}

bool May_Write_In(const std::string& folder) {
    const HANDLE found = ::CreateFileW(System_Path(folder).c_str(), FILE_ADD_FILE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (found == INVALID_HANDLE_VALUE) {
        return false;
    }
    ::CloseHandle(found);
    return true;
}

bool Make_Folder(const std::string& path) {
    const std::wstring folder = System_Path(path);
    // From the top down, from behind the disk on.
    constexpr std::size_t behind_disk = 7; // of "\\?\C:\"
    for (std::size_t end = behind_disk; end != std::wstring::npos && !Is_Folder(folder);) {
        end = folder.find(L'\\', end + 1);
        ::CreateDirectoryW(folder.substr(0, end).c_str(), nullptr);
    }
    return Is_Folder(folder);
}

void Move_File(const std::string& from, const std::string& to) {
    ::MoveFileExW(System_Path(from).c_str(), System_Path(to).c_str(),
                  MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

} // namespace kestrum
