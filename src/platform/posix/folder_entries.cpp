#include "platform/folder_entries.h"

#include <filesystem>
#include <system_error>

namespace kestrum {

namespace fs = std::filesystem;

bool Is_Folder(const std::string& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

std::string Look_Through_Folder(const std::string& folder,
                                const std::function<bool(Folder_Entry entry)>& wants_more) {
    std::error_code failure;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        if (!wants_more({.name = entry->path().filename().string(),
                         .is_folder = entry->is_directory(ignored),
                         .is_link = entry->is_symlink(ignored)})) {
            break;
        }
    }
    return failure ? failure.message() : std::string();
}

} // namespace kestrum
