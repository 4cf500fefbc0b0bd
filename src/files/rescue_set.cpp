#include "files/rescue_set.h"

#include "base/run_time_error.h"
#include "files/rescue_folder.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"

namespace kestrum {

namespace {

/// Stands in the folder while its new files are given their names.
constexpr std::string_view decision_name = "decided";

std::string New_Path(const std::string& folder, std::string_view name) {
    return Join_Path(folder, std::string(name) + ".new");
}

void Give_Names(const std::string& folder) {
    for (const std::string& name : Rescue_Folder::Written_Names()) {
        const std::string beside = New_Path(folder, name);
        if (File_Exists(beside)) {
            Move_File(beside, Join_Path(folder, name));
        }
        if (File_Exists(beside)) {
            Fail(error::path_or_file_access); // decided, so it must not be taken back
        }
    }
}

} // namespace

void Complete_Rescue_Set(const std::string& folder) {
    const std::string decision = Join_Path(folder, decision_name);
    if (File_Exists(decision)) {
        Give_Names(folder);
    }
    for (const std::string& name : Rescue_Folder::Written_Names()) {
        Remove_File(New_Path(folder, name));
    }
    Remove_File(decision);
}

void Write_Rescue_Set(const std::string& folder, const Rescue_Set& set) {
    Complete_Rescue_Set(folder);
    if (set.size() == 1) {
        Write_Whole_File(Join_Path(folder, set.begin()->first), set.begin()->second);
        return;
    }
    for (const auto& [name, content] : set) {
        Write_Whole_File(New_Path(folder, name), content);
    }
    Write_Whole_File(Join_Path(folder, decision_name), "");
    Complete_Rescue_Set(folder);
}

} // namespace kestrum
