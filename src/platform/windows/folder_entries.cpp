#include "platform/folder_entries.h"

#include "platform/windows/system_path.h"

#include <windows.h>

namespace kestrum {

namespace {

Folder_Entry Entry_Of(const WIN32_FIND_DATAW& found) {
    const bool leads_on = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return {.name = Narrow_Text(found.cFileName),
            .is_folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
            // What merely lies elsewhere for now, as in a cloud, is no link.
            .is_link = leads_on && IsReparseTagNameSurrogate(found.dwReserved0)};
}

} // namespace

bool Is_Folder(const std::string& path) {
    const DWORD kind = ::GetFileAttributesW(System_Path(path).c_str());
    return kind != INVALID_FILE_ATTRIBUTES && (kind & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string Look_Through_Folder(const std::string& folder,
                                const std::function<bool(Folder_Entry entry)>& wants_more) {
    std::wstring all = System_Path(folder.empty() ? "." : folder);
    all += all.ends_with(L'\\') ? L"*" : L"\\*";
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(all.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        const DWORD why = ::GetLastError();
        // A whole disk with nothing on it, which has no entry for itself either.
        return why == ERROR_FILE_NOT_FOUND ? std::string() : Words_Of_Failure(why);
    }
    DWORD failure = ERROR_SUCCESS;
    bool goes_on = true;
    while (goes_on) {
        const std::wstring_view name = found.cFileName;
        goes_on = name == L"." || name == L".." || wants_more(Entry_Of(found));
        if (goes_on && ::FindNextFileW(search, &found) == 0) {
            failure = ::GetLastError();
            goes_on = false;
        }
    }
    ::FindClose(search);
    const bool is_at_end = failure == ERROR_SUCCESS || failure == ERROR_NO_MORE_FILES;
    return is_at_end ? std::string() : Words_Of_Failure(failure);
}

} // namespace kestrum
