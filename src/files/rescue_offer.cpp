#include "files/rescue_offer.h"

#include "engine/engine_calculation.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "sheet/flow_calculation.h"

#include <algorithm>
#include <functional>

namespace kestrum {

namespace {

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

Flow_Sheet& Sheet_Of(Session& session, const Left_Copy& copy) {
    return session.Sheet(copy.screen.number);
}

/// "Flow Test 3 (Iron head)": the sheet as the user knows it, with the part number of the test.
std::string Described(const Left_Copy& copy) {
    if (copy.screen.kind == Screen_Kind::Engine) {
        return Title_Of(copy.screen);
    }
    const std::string content = copy.folder->Content(Rescue_Folder::File_Of(copy.screen));
    constexpr std::string_view key = "Text102_0 = ";
    const std::size_t found = content.find(key);
    const std::size_t begin = found + key.size();
    const std::string part = found == std::string::npos
                                 ? std::string()
                                 : content.substr(begin, content.find('\r', begin) - begin);
    return Title_Of(copy.screen) + " (" + part + ")";
}

/// The copies are in an order that puts the newest of a screen first.
bool Is_Newest(const std::vector<Left_Copy>& copies, const Left_Copy& copy) {
    return &*std::ranges::find(copies, copy.screen, &Left_Copy::screen) == &copy;
}

std::string Question(const std::vector<Left_Copy>& copies) {
    std::string text = "The program has ended without its exit. What stood in these screens then "
                       "is still here:\r\n\r\n";
    bool is_any_twice = false;
    for (const Left_Copy& copy : copies) {
        text += Described(copy) + " -- " + Time_Of_File(copy.path) + "\r\n";
        is_any_twice = is_any_twice || !Is_Newest(copies, copy);
    }
    if (is_any_twice) {
        text += "\r\nOf a screen that stands here more than once the newest is loaded; the others "
                "are kept in the folder rescue-declined.\r\n";
    }
    return text + "\r\nDo you want to load it?";
}

void Put_Into_Screen(Session& session, const Left_Copy& copy) {
    const std::string content = Read_Whole_File(copy.path);
    if (content.find(" = ") == std::string::npos) {
        Fail(error::path_or_file_access); // whatever it is, no record stands in it
    }
    const std::string point = copy.folder->Content(Rescue_Folder::point_name);
    const bool same_point = point.size() == 1 && point.front() == session.numbers.Point();
    if (copy.screen.kind == Screen_Kind::Engine) {
        Restore_Main_Inputs(session, content, same_point);
    } else {
        Restore_Flow_Inputs(session, Sheet_Of(session, copy), content, same_point);
    }
}

bool Has_Units_Of(Session& session, const Left_Copy& copy) {
    const std::string units = copy.folder->Content(Rescue_Folder::units_name);
    return copy.screen.kind == Screen_Kind::Engine || units.empty() ||
           units == Present_Units(session);
}

/// `Main` comes first and brings its units: a sheet in others would be read as another test.
bool Load_Copy(Session& session, const Left_Copy& copy) {
    const bool fits = Has_Units_Of(session, copy);
    if (fits && Quietly([&] { Put_Into_Screen(session, copy); })) {
        return true;
    }
    const std::string kept = Put_Copy_Aside(session, copy.path);
    session.Message((fits ? "This copy could not be read: "
                          : "This copy is in other units than the rest and was not loaded: ") +
                        kept,
                    Box_Icon::Exclamation);
    return false;
}

/// The failure that ended the last run may still stand in a field: it must not end this one.
void Calculate(Session& session, const std::vector<Left_Copy>& loaded) {
    Quietly([&] { Calc_Engine(session); });
    for (const Left_Copy& copy : loaded) {
        if (copy.screen.kind != Screen_Kind::Engine) {
            session.box_topic = Title_Of(copy.screen);
            Quietly([&] { Calc_Flow_Test(session, Sheet_Of(session, copy)); });
            session.box_topic.clear();
        }
    }
}

std::vector<Left_Copy> Load(Session& session, const std::vector<Left_Copy>& copies) {
    std::vector<Left_Copy> loaded;
    for (const Left_Copy& copy : copies) {
        if (!Is_Newest(copies, copy)) {
            Put_Copy_Aside(session, copy.path);
        } else if (Load_Copy(session, copy)) {
            loaded.push_back(copy);
        }
    }
    Calculate(session, loaded);
    return loaded;
}

} // namespace

std::string Present_Units(Session& session) {
    return session.Main().Check2.Value() == 1 ? "metric" : "US";
}

std::vector<Left_Copy> Left_Copies(const std::vector<const Rescue_Folder*>& folders) {
    std::vector<Left_Copy> copies;
    for (const Screen_Id screen : Rescue_Folder::kept_screens) {
        const std::size_t first = copies.size();
        for (const Rescue_Folder* const folder : folders) {
            if (folder->Has_Copy(screen)) {
                const std::string path = folder->Path_Of(screen);
                copies.push_back({screen, folder, path, Moment_Of_File(path)});
            }
        }
        std::ranges::stable_sort(copies.begin() + static_cast<std::ptrdiff_t>(first), copies.end(),
                                 std::greater(), &Left_Copy::moment);
    }
    return copies;
}

std::vector<Left_Copy> Offer_Copies(Session& session, const std::vector<Left_Copy>& copies) {
    const Box_Answer answer = session.Message(Box{.text = Question(copies),
                                                  .title = {},
                                                  .icon = Box_Icon::Question,
                                                  .buttons = Box_Buttons::Yes_No});
    if (answer == Box_Answer::Yes) {
        return Load(session, copies);
    }
    for (const Left_Copy& copy : copies) {
        Put_Copy_Aside(session, copy.path);
    }
    return {};
}

std::string Put_Copy_Aside(const Session& session, const std::string& path) {
    const std::string aside = Join_Path(session.surroundings.folder, "rescue-declined");
    std::string kept = Make_Folder(aside) ? Move_To_Fresh_Name(path, aside) : std::string();
    if (kept.empty()) { // another name beside it keeps it from being written over as well
        kept = Move_To_Fresh_Name(path, Folder_Of(path));
    }
    return kept.empty() ? path : kept;
}

} // namespace kestrum
