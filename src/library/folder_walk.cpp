#include "library/folder_walk.h"

#include "base/text.h"
#include "platform/file_path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

class Walk {
public:
    Walk(const std::string& folder, const std::function<bool()>& goes_on)
        : folder_(File_Path(folder)), goes_on_(goes_on) {}

    [[nodiscard]] Folder_Walk Take() {
        std::error_code failure;
        walk_.is_there = fs::is_directory(folder_, failure);
        if (walk_.is_there) {
            // A list of folders still to be looked through: no depth of them costs a stack.
            open_.emplace_back();
        }
        while (!open_.empty() && Goes_On()) {
            const std::string below = std::move(open_.back());
            open_.pop_back();
            Look_Through(below);
        }
        std::ranges::sort(walk_.tests, {}, &Found_Test::file);
        std::ranges::sort(walk_.problems);
        return std::move(walk_);
    }

private:
    [[nodiscard]] bool Goes_On() const { return !goes_on_ || goes_on_(); }

    void Look_Through(const std::string& below) {
        std::error_code failure;
        fs::directory_iterator entry(folder_ / File_Path(below), failure);
        while (!failure && entry != fs::directory_iterator() && Goes_On()) {
            Take_Entry(*entry, below);
            entry.increment(failure);
        }
        if (failure) {
            walk_.problems.push_back((folder_ / File_Path(below)).string() + ": " +
                                     failure.message());
        }
    }

    void Take_Entry(const fs::directory_entry& entry, const std::string& below) {
        std::error_code ignored;
        std::string file = below + entry.path().filename().string();
        const bool is_link = entry.is_symlink(ignored);
        if (entry.is_directory(ignored)) {
            if (!is_link) {
                open_.push_back(file + "/");
            }
            return;
        }
        if (const std::optional<Test_Format> format = Format_Of_Ending(file)) {
            walk_.tests.push_back({.file = std::move(file), .format = *format});
        }
    }

    fs::path folder_;
    const std::function<bool()>& goes_on_;
    Folder_Walk walk_;
    std::vector<std::string> open_;
};

} // namespace

Folder_Walk Tests_Below(const std::string& folder, const std::function<bool()>& goes_on) {
    return Walk(folder, goes_on).Take();
}

} // namespace kestrum
