#include "platform/file_store.h"

#include <algorithm>
#include <filesystem>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

/// The name under which a folder holds what is wanted: the exact one, else the first in byte order
/// that differs in case alone; empty when there is none.
std::string Name_As_Held(const fs::path& folder, const std::string& wanted) {
    std::error_code failed;
    if (fs::exists(folder / wanted, failed)) {
        return wanted;
    }
    std::string first;
    for (std::string& name : Names_In_Folder(folder.empty() ? "." : folder.string())) {
        if (Lower(name) == Lower(wanted) && (first.empty() || name < first)) {
            first = std::move(name);
        }
    }
    return first;
}

} // namespace

std::string Join_Path(std::string_view folder, std::string_view name) {
    return (fs::path(folder) / fs::path(name)).string();
}

std::string Find_Case_Blind(const std::string& path) {
    // No system opens a longer one, and each part of it costs a look into a folder.
    constexpr std::size_t longest_path = 4096;
    if (path.size() > longest_path || File_Exists(path)) {
        return path;
    }
    const fs::path wanted(path);
    fs::path found = wanted.root_path();
    for (const fs::path& part : wanted.relative_path()) {
        const std::string name = Name_As_Held(found, part.string());
        if (name.empty()) {
            return path;
        }
        found /= name;
    }
    return found.string();
}

bool File_Exists(const std::string& path) {
    std::error_code failed;
    return fs::exists(path, failed);
}

bool Can_Be_Read(const std::string& path) {
    std::error_code failed;
    return fs::is_regular_file(path, failed) && ::access(path.c_str(), R_OK) == 0;
}

bool May_Write_In(const std::string& folder) {
    return ::access(folder.c_str(), W_OK) == 0;
}

bool Make_Folder(const std::string& path) {
    std::error_code failed;
    fs::create_directories(path, failed);
    return fs::is_directory(path, failed);
}

void Move_File(const std::string& from, const std::string& to) {
    std::error_code ignored;
    fs::rename(from, to, ignored);
}

} // namespace kestrum
