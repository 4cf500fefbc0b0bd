#include "library/folder_walk.h"

#include "base/text.h"
#include "platform/file_store.h"
#include "platform/folder_entries.h"

#include <algorithm>

namespace kestrum {

namespace {

class Walk {
public:
    Walk(const std::string& folder, const std::function<bool()>& goes_on)
        : folder_(folder), goes_on_(goes_on) {}

    [[nodiscard]] Folder_Walk Take() {
        walk_.is_there = Is_Folder(folder_);
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
        const std::string folder = Join_Path(folder_, below);
        const std::string failure = Look_Through_Folder(folder, [&](const Folder_Entry& entry) {
            Take_Entry(entry, below);
            return Goes_On();
        });
        if (!failure.empty()) {
            walk_.problems.push_back(folder + ": " + failure);
        }
    }

    void Take_Entry(const Folder_Entry& entry, const std::string& below) {
        std::string file = below + entry.name;
        if (entry.is_folder) {
            if (!entry.is_link) {
                open_.push_back(file + "/");
            }
            return;
        }
        if (const std::optional<Test_Format> format = Format_Of_Ending(file)) {
            walk_.tests.push_back({.file = std::move(file), .format = *format});
        }
    }

    const std::string& folder_;
    const std::function<bool()>& goes_on_;
    Folder_Walk walk_;
    std::vector<std::string> open_;
};

} // namespace

Folder_Walk Tests_Below(const std::string& folder, const std::function<bool()>& goes_on) {
    return Walk(folder, goes_on).Take();
}

} // namespace kestrum
