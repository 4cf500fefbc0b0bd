#include "files/rescue_folder.h"

#include "base/numeric_text.h"
#include "base/run_time_error.h"
#include "files/rescue_set.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "platform/passing_file.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr std::string_view lock_name = "in-use";

} // namespace

Rescue_Folder::Rescue_Folder(const std::string& home, int number)
    : path_(
          Join_Path(home, number == 1 ? "rescue" : "rescue-" + Numeric_Text().Fmt_Whole(number))) {}

std::string Rescue_Folder::File_Of(Screen_Id screen) {
    return Name_Of(screen) + (screen.kind == Screen_Kind::Engine ? ".dta" : ".dat");
}

std::vector<std::string> Rescue_Folder::Written_Names() {
    std::vector<std::string> names;
    for (const Screen_Id screen : kept_screens) {
        names.push_back(File_Of(screen));
    }
    names.emplace_back(point_name);
    names.emplace_back(units_name);
    return names;
}

bool Rescue_Folder::Take() {
    // An exit may remove the folder between the two steps.
    constexpr int most_rounds = 100;
    for (int round = 0; round < most_rounds; ++round) {
        if (!Make_Folder(path_)) {
            return false;
        }
        if (lock_.Take(Join_Path(path_, lock_name))) {
            try {
                Complete_Rescue_Set(path_);
                return true;
            } catch (const Run_Time_Error&) {
                lock_.Release();
                return false;
            }
        }
        if (File_Exists(path_)) {
            return false;
        }
    }
    return false;
}

std::string Rescue_Folder::Path_Of(Screen_Id screen) const {
    return Join_Path(path_, File_Of(screen));
}

bool Rescue_Folder::Has_Copy(Screen_Id screen) const {
    return File_Exists(Path_Of(screen));
}

bool Rescue_Folder::Is_Free_Of_Copies() const {
    return std::ranges::none_of(kept_screens,
                                [this](Screen_Id screen) { return Has_Copy(screen); });
}

std::string Rescue_Folder::Content(std::string_view name) const {
    try {
        return Read_Whole_File(Join_Path(path_, name));
    } catch (const Run_Time_Error&) {
        return {};
    }
}

void Rescue_Folder::Remove_Copies() {
    for (const Screen_Id screen : kept_screens) {
        Remove_File(Path_Of(screen));
    }
}

void Rescue_Folder::Leave() {
    if (Is_Held() && Is_Free_Of_Copies()) {
        for (const std::string& name : Written_Names()) {
            Remove_File(Join_Path(path_, name));
        }
        Remove_Left_Overs(path_); // of killed programs; they would keep the folder
        // Last, for then another program may come in.
        Remove_File(Join_Path(path_, lock_name));
        lock_.Release(); // some systems keep the name until then
        Remove_Empty_Folder(path_);
    }
    lock_.Release();
}

} // namespace kestrum
