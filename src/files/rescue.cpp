#include "files/rescue.h"

#include "core/text.h"
#include "engine/engine_calculation.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "platform/file_store.h"
#include "sheet/flow_calculation.h"

#include <array>

namespace kestrum {

namespace {

constexpr std::array<std::string_view, 6> kept_screens{"Main",  "Form1", "Form2",
                                                       "Form3", "Form4", "Form5"};
constexpr std::string_view lock_name = "in-use";
/// Holds the decimal separator that the copies are written with.
constexpr std::string_view point_name = "point";

/// Runs what may fail without a word.
template <typename Action>
bool Quietly(Action action) {
    try {
        action();
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

std::string Content_If_Any(const std::string& path) {
    std::string content;
    Quietly([&] { content = Read_Whole_File(path); });
    return content;
}

/// "Form3" as the user knows it, with the part number of the test.
std::string Words_For(const std::string& screen, const std::string& content) {
    if (screen == "Main") {
        return "Main";
    }
    constexpr std::string_view key = "Text102_0 = ";
    const std::size_t at = content.find(key);
    const std::size_t begin = at + key.size();
    const std::string part = at == std::string::npos
                                 ? std::string()
                                 : content.substr(begin, content.find('\r', begin) - begin);
    return "Flow Test " + screen.substr(screen.size() - 1) + " (" + part + ")";
}

} // namespace

Rescue::Rescue(Session& session) : session_(session) {
    const std::string& home = session.surroundings.folder;
    constexpr int most_programs = 9;
    for (int number = 1; number <= most_programs && folder_.empty(); ++number) {
        std::string name = "rescue";
        if (number > 1) {
            name += "-" + session.number.Fmt_Whole(number);
        }
        const std::string folder = Join_Path(home, name);
        if (Make_Folder(folder) && lock_.Take(Join_Path(folder, lock_name))) {
            folder_ = folder;
        }
    }
}

std::string Rescue::Path_Of(const std::string& screen) const {
    return Join_Path(folder_, screen + (screen == "Main" ? ".dta" : ".dat"));
}

std::vector<Rescue::Found_Copy> Rescue::Found() const {
    std::vector<Found_Copy> copies;
    for (const std::string_view name : kept_screens) {
        const std::string screen(name);
        if (!folder_.empty() && Can_Be_Read(Path_Of(screen))) {
            copies.push_back({screen, Path_Of(screen)});
        }
    }
    return copies;
}

std::string Rescue::Inputs_Of(Screen& screen) {
    const int written = session_.records_written;
    std::string inputs;
    Quietly([&] {
        inputs = screen.Name() == "Main"
                     ? Main_File_Text(session_)
                     : Flow_File_Text(session_, static_cast<Flow_Sheet&>(screen));
    });
    session_.records_written = written;
    return inputs;
}

void Rescue::Note_Present_Inputs() {
    for (const std::string_view name : kept_screens) {
        if (session_.Is_Loaded(name)) {
            safe_inputs_.insert_or_assign(std::string(name),
                                          Inputs_Of(*session_.Screen_Named(name)));
        }
    }
}

void Rescue::Offer() {
    Note_Present_Inputs();
    const std::vector<Found_Copy> copies = Found();
    if (copies.empty()) {
        return;
    }
    std::string text = "The program has ended without its exit. What stood in these screens then "
                       "is still here:\r\n\r\n";
    for (const Found_Copy& copy : copies) {
        text += Words_For(copy.screen, Content_If_Any(copy.path)) + " -- " +
                Time_Of_File(copy.path) + "\r\n";
    }
    text += "\r\nDo you want to load it?";
    const Box_Answer answer = session_.Message(
        Box{.text = text, .title = {}, .icon = Box_Icon::Question, .buttons = Box_Buttons::Yes_No});
    if (answer == Box_Answer::Yes) {
        Load(copies);
        Keep();
    } else {
        Put_Aside(copies);
    }
}

void Rescue::Load(const std::vector<Found_Copy>& copies) {
    const std::string point = Content_If_Any(Join_Path(folder_, point_name));
    const bool same_point = point.size() == 1 && point.front() == session_.number.Point();
    for (const Found_Copy& copy : copies) {
        const std::string content = Content_If_Any(copy.path);
        const bool taken = Quietly([&] {
            if (copy.screen == "Main") {
                Restore_Main_Inputs(session_, content, same_point);
            } else {
                auto& sheet = static_cast<Flow_Sheet&>(*session_.Screen_Named(copy.screen));
                Restore_Flow_Inputs(session_, sheet, content, same_point);
            }
        });
        if (!taken) {
            session_.Message("This copy could not be read: " + copy.path, Box_Icon::Exclamation);
        }
    }
    // The failure that ended the last run may still stand in a field: it must not end this one.
    Quietly([&] { Calc_Engine(session_); });
    for (const Found_Copy& copy : copies) {
        if (copy.screen != "Main") {
            Quietly([&] {
                Calc_Flow_Test(session_,
                               static_cast<Flow_Sheet&>(*session_.Screen_Named(copy.screen)));
            });
        }
    }
}

void Rescue::Put_Aside(const std::vector<Found_Copy>& copies) {
    const std::string aside = Join_Path(session_.surroundings.folder, "rescue-declined");
    if (!Make_Folder(aside)) {
        return;
    }
    for (const Found_Copy& copy : copies) {
        Move_File(copy.path, Join_Path(aside, Name_In_Folder(folder_, copy.path)));
    }
}

void Rescue::Keep() {
    if (folder_.empty()) {
        return;
    }
    for (const std::string_view name : kept_screens) {
        const std::string screen(name);
        if (!session_.Is_Loaded(name)) {
            safe_inputs_.erase(screen); // its last copy stays, for its window may be missed
            continue;
        }
        const std::string inputs = Inputs_Of(*session_.Screen_Named(name));
        const auto [known, is_new] = safe_inputs_.try_emplace(screen, inputs);
        if (!is_new && known->second != inputs) {
            Write_Copy(screen, inputs);
        }
    }
}

void Rescue::Write_Copy(const std::string& screen, const std::string& inputs) {
    const bool written = Quietly([&] {
        if (!point_noted_) {
            Write_Whole_File(Join_Path(folder_, point_name),
                             std::string(1, session_.number.Point()));
            point_noted_ = true;
        }
        Write_Whole_File(Path_Of(screen), inputs);
    });
    if (written) {
        safe_inputs_[screen] = inputs;
    }
}

void Rescue::Remove() {
    if (!folder_.empty()) {
        Remove_Folder(folder_);
        lock_.Release();
        folder_.clear();
    }
}

} // namespace kestrum
