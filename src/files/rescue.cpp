#include "files/rescue.h"

#include "base/text.h"
#include "engine/engine_calculation.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"

#include <algorithm>
#include <utility>

namespace kestrum {

namespace {

Screen_Id Screen_At(std::size_t index) {
    return Rescue_Folder::kept_screens[index];
}

} // namespace

Rescue::Rescue(Session& session) : session_(session), folder_(Free_Folder(true)) {
    Note();
    for (Kept_Screen& screen : screens_) {
        screen.handed = screen.noted;
    }
}

Rescue::~Rescue() {
    constexpr std::chrono::seconds long_enough{60};
    Flush(long_enough);
}

std::unique_ptr<Rescue_Folder> Rescue::Free_Folder(bool with_old_copies) const {
    for (int number = 1; number <= Rescue_Folder::most_programs; ++number) {
        auto folder = std::make_unique<Rescue_Folder>(session_.surroundings.folder, number);
        if (folder->Take() && (with_old_copies || folder->Is_Free_Of_Copies())) {
            return folder;
        }
    }
    return nullptr;
}

Rescue_Folders Rescue::Left_Folders() const {
    Rescue_Folders folders;
    for (int number = 1; number <= Rescue_Folder::most_programs; ++number) {
        auto folder = std::make_unique<Rescue_Folder>(session_.surroundings.folder, number);
        const bool is_own = folder_ && folder->Path() == folder_->Path();
        if (!is_own && File_Exists(folder->Path()) && folder->Take()) {
            folders.push_back(std::move(folder));
        }
    }
    return folders;
}

void Rescue::Offer() {
    if (!folder_) {
        session_.Message("No rescue copies can be kept: nine programs that run in this folder keep "
                         "theirs already, or it cannot be written. Save your work yourself.",
                         Box_Icon::Exclamation);
        return;
    }
    left_folders_ = Left_Folders();
    std::vector<const Rescue_Folder*> folders{folder_.get()};
    for (const auto& folder : left_folders_) {
        folders.push_back(folder.get());
    }
    const std::vector<Left_Copy> copies = Left_Copies(folders);
    if (!copies.empty()) {
        for (const Left_Copy& copy : Offer_Copies(session_, copies)) {
            if (copy.folder != folder_.get()) {
                loaded_copies_.push_back(copy.path);
            }
        }
        Note();
    }
    Write();
}

std::optional<std::string> Rescue::Inputs_Of(Screen& screen) {
    const int written = session_.file.records_written;
    std::optional<std::string> inputs;
    try {
        inputs = screen.Kind() == Screen_Kind::Engine
                     ? Main_File_Text(session_)
                     : Flow_File_Text(session_, session_.Sheet(screen.Id().number));
    } catch (const Run_Time_Error&) {
        inputs.reset(); // the last good copy is better than none
    }
    session_.file.records_written = written;
    return inputs;
}

void Rescue::Note() {
    if (is_finished_) {
        return;
    }
    for (std::size_t index = 0; index < screens_.size(); ++index) {
        Note_Screen(index);
    }
    Note_Units();
    Tell_Failed_Writing();
}

/// A full disk must not be found out by the next crash.
void Rescue::Tell_Failed_Writing() {
    if (writer_.Has_Failed() && !std::exchange(failure_is_told_, true)) {
        session_.Message("The rescue copies cannot be written; the disk may be full. Save your "
                         "work yourself.",
                         Box_Icon::Exclamation);
    }
}

/// No file of that length is written or read, and it must not keep the other screens from theirs.
bool Rescue::Is_Too_Long(Kept_Screen& kept, Screen_Id screen, std::string_view inputs) {
    const bool is_too_long = inputs.size() > most_text_bytes;
    if (is_too_long && !kept.is_too_long) {
        session_.Message("The comments are too long for a rescue copy, and for any file: " +
                             Title_Of(screen),
                         Box_Icon::Exclamation);
    }
    kept.is_too_long = is_too_long;
    return is_too_long;
}

void Rescue::Note_Screen(std::size_t index) {
    Kept_Screen& kept = screens_.at(index);
    if (!session_.Is_Loaded(Screen_At(index))) {
        if (kept.is_loaded) {
            kept.is_loaded = false; // its last copy stays, for its window may be missed
            Write();
        }
        return;
    }
    std::optional<std::string> inputs = Inputs_Of(session_.The(Screen_At(index)));
    if (!inputs || Is_Too_Long(kept, Screen_At(index), *inputs)) {
        return;
    }
    if (!std::exchange(kept.is_loaded, true)) {
        kept.handed = *inputs; // the stored texts of a new window are no work
    }
    kept.noted = *std::move(inputs);
}

/// All copies of a folder are in the same units. That of a closed sheet does not follow a switch.
void Rescue::Note_Units() {
    if (!session_.Is_Loaded(Screen_Id{})) {
        return;
    }
    std::string units = Present_Units(session_);
    if (units == units_) {
        return;
    }
    units_ = std::move(units);
    units_are_due_ = true;
    for (std::size_t index = 0; index < screens_.size(); ++index) {
        Kept_Screen& kept = screens_.at(index);
        if (!kept.is_loaded && std::exchange(kept.has_copy, false) && folder_) {
            constexpr std::chrono::seconds long_enough{5};
            writer_.Flush(long_enough);
            Put_Copy_Aside(session_, folder_->Path_Of(Screen_At(index)));
        }
    }
}

bool Rescue::Is_Anything_Due() const {
    return writer_.Has_Failed() || std::ranges::any_of(screens_, [](const Kept_Screen& kept) {
               return kept.noted != kept.handed;
           });
}

/// A folder that was removed under the program is made again, with all its copies.
bool Rescue::Hold_Folder() {
    if (folder_ && folder_->Is_Held()) {
        return true;
    }
    folder_ = Free_Folder(false);
    if (!folder_) {
        return false;
    }
    for (Kept_Screen& kept : screens_) {
        if (kept.has_copy) {
            kept.handed.clear();
        }
    }
    units_are_due_ = true;
    return true;
}

Rescue_Set Rescue::Take_Due() {
    Rescue_Set due;
    for (std::size_t index = 0; index < screens_.size(); ++index) {
        Kept_Screen& kept = screens_.at(index);
        if (kept.noted != kept.handed) {
            due.emplace(Rescue_Folder::File_Of(Screen_At(index)), kept.noted);
            kept.handed = kept.noted;
            kept.has_copy = true;
        }
    }
    if (std::exchange(units_are_due_, false)) {
        due.emplace(Rescue_Folder::point_name, std::string(1, session_.numbers.Point()));
        due.emplace(Rescue_Folder::units_name, units_);
    }
    return due;
}

void Rescue::Write() {
    if (is_finished_) {
        return;
    }
    if (Is_Anything_Due() && Hold_Folder()) {
        writer_.Put(folder_->Path(), Take_Due());
    }
    Retire_Loaded_Copies();
}

void Rescue::Retire_Loaded_Copies() {
    if (!left_folders_.empty() && !Is_Anything_Due() && writer_.Is_Idle()) {
        Remove_Loaded_Copies();
    }
}

void Rescue::Remove_Loaded_Copies() {
    for (const std::string& path : std::exchange(loaded_copies_, {})) {
        Remove_File(path);
    }
    for (const auto& folder : std::exchange(left_folders_, {})) {
        folder->Leave();
    }
}

bool Rescue::Flush(std::chrono::milliseconds at_most) {
    const bool is_done = writer_.Flush(at_most);
    Retire_Loaded_Copies();
    return is_done;
}

void Rescue::Finish(bool is_saved) {
    if (is_finished_) {
        return;
    }
    if (!is_saved) {
        constexpr std::chrono::seconds long_enough{60};
        Write();
        Flush(long_enough);
    }
    is_finished_ = true;
    writer_.Stop();
    if (is_saved && folder_) {
        folder_->Remove_Copies();
        folder_->Leave();
    }
    if (is_saved) {
        Remove_Loaded_Copies();
    }
    folder_.reset();
    left_folders_.clear();
}

} // namespace kestrum
