#pragma once

#include "core/session.h"
#include "files/rescue_folder.h"
#include "files/rescue_offer.h"
#include "files/rescue_writer.h"

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// Copies of `Main` and the sheets, in the system's own formats, for the case that the program ends
/// without its exit: by a failure, a crash or a kill. They lie in the folder "rescue" below the
/// program's folder; a program that runs beside another takes "rescue-2" and so on. Copies show a
/// state between two commands, never the middle of one: a face notes the state when no routine
/// runs, and only what was noted is written, beside the window. Nothing here raises: a disk that
/// takes no copy must not disturb the work.
class Rescue {
public:
    /// Takes a folder that no running program holds. The state of the session is that of a start
    /// and needs no copy.
    explicit Rescue(Session& session);
    Rescue(const Rescue&) = delete;
    Rescue& operator=(const Rescue&) = delete;
    /// Waits until what was handed over is written; the copies stay.
    ~Rescue();

    /// Behind the start: asks once whether to load what earlier runs have left. What is declined
    /// is put aside into "rescue-declined". Tells when no copies can be kept.
    void Offer();

    /// Takes the texts of the loaded screens down, and tells once when one of them, or all, cannot
    /// be kept. Only for the time between two commands.
    void Note();
    /// Hands what was noted last to the writer, as far as it has changed. At any time.
    void Write();

    /// Both: only for the time between two commands.
    void Keep() {
        Note();
        Write();
    }

    /// Waits until the copies are written; false when that fails or takes longer.
    bool Flush(std::chrono::milliseconds at_most);

    /// Behind the exit: a session that was saved needs no copy. Of another the copies show the
    /// state in which the exit found it.
    void Finish(bool is_saved);

private:
    struct Kept_Screen {
        std::string noted;
        /// What was last handed to the writer, or the state that needs no copy.
        std::string handed;
        bool is_loaded = false;
        bool has_copy = false;
        bool is_too_long = false;
    };

    [[nodiscard]] std::unique_ptr<Rescue_Folder> Free_Folder(bool with_old_copies) const;
    [[nodiscard]] Rescue_Folders Left_Folders() const;
    /// The inputs of a screen as the file that a copy is; nothing when they cannot be had.
    [[nodiscard]] std::optional<std::string> Inputs_Of(Screen& screen);
    [[nodiscard]] bool Is_Too_Long(Kept_Screen& kept, Screen_Id screen, std::string_view inputs);
    void Tell_Failed_Writing();
    [[nodiscard]] bool Is_Anything_Due() const;
    [[nodiscard]] bool Hold_Folder();
    [[nodiscard]] Rescue_Set Take_Due();
    void Note_Screen(std::size_t index);
    void Note_Units();
    void Retire_Loaded_Copies();
    void Remove_Loaded_Copies();

    Session& session_;
    /// Null when none could be had.
    std::unique_ptr<Rescue_Folder> folder_;
    std::array<Kept_Screen, Rescue_Folder::kept_screens.size()> screens_;
    std::string units_;
    bool units_are_due_ = true;
    bool is_finished_ = false;
    bool failure_is_told_ = false;
    /// Folders of earlier runs and the copies there that were loaded: they go when the own copies
    /// are written.
    Rescue_Folders left_folders_;
    std::vector<std::string> loaded_copies_;
    Rescue_Writer writer_;
};

} // namespace kestrum
