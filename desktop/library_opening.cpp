#include "desktop/library_opening.h"

#include "base/text.h"
#include "core/sheet_opening.h"
#include "exchange/lift_rows.h"
#include "files/kept_tests.h"
#include "platform/file_store.h"

namespace kestrum::desktop {

namespace {

bool Shows(Session& session, int number) {
    return session.Is_Loaded(Screen_Id{Screen_Kind::Sheet, number}) &&
           session.Sheet(number).visible;
}

std::string Sheet_Name(int number) {
    return std::string("Flow Test ") + static_cast<char>('0' + number);
}

bool May_Take_The_Place(Session& session, const Library_Test& test, int number) {
    const std::string held(Without_Outer_Blanks(session.Sheet(number).Text102(0).Text()));
    return session.Message({.text = Sheet_Name(number) + " is open" +
                                    (held.empty() ? "" : " and holds \"" + held + "\"") +
                                    ".\r\n\r\nShall \"" + test.name +
                                    "\" take its place? Undo brings it back.",
                            .title = {},
                            .icon = Box_Icon::Question,
                            .buttons = Box_Buttons::Yes_No}) == Box_Answer::Yes;
}

/// Only `.dat` files do not say their units.
bool Has_Units_Of_Session(Session& session, const Library_Test& test) {
    if (test.format != Test_Format::Dat || test.metric == session.Main().Is_Metric()) {
        return true;
    }
    session.Message(test.metric ? "The numbers of this folder are metric, and the program is in US "
                                  "units.\r\n\r\nTick Metric on Main first."
                                : "The numbers of this folder are in US units, and the program is "
                                  "metric.\r\n\r\nUntick Metric on Main first, or tick the box "
                                  "above the list if the files are metric.",
                    Box_Icon::Exclamation);
    return false;
}

void Load(Session& session, const Library_Test& test, int number) {
    const std::string bytes = Read_Whole_File(test.path);
    Flow_Sheet& sheet = session.Sheet(number);
    if (test.format == Test_Format::Dat) {
        Empty_Lift_Rows(sheet); // as in the list: no row of the sample passes for the file's
    }
    session.file.path = test.path;
    if (Read_Test(session, sheet, test.format, bytes)) {
        sheet.Text39.Set_Text(test.path);
    }
    Show_With_Caption(session, sheet);
}

} // namespace

bool Is_Open_Sheet(Session& session, int number) {
    return session.Is_Loaded(Screen_Id{Screen_Kind::Sheet, number}) &&
           (session.Sheet(number).visible || !Is_As_Brought(session, session.Sheet(number)));
}

int Next_Free_Sheet(Session& session) {
    for (const auto& is_taken : {Is_Open_Sheet, Shows}) {
        for (int number = 1; number <= sheet_count; ++number) {
            if (!is_taken(session, number)) {
                return number;
            }
        }
    }
    return 0;
}

void Open_In_Sheet(Session& session, Gate& gate, const Library_Test& test, int number) {
    gate.Enter_Command(
        [&] {
            if (Has_Units_Of_Session(session, test) &&
                (!Is_Open_Sheet(session, number) || May_Take_The_Place(session, test, number))) {
                Load(session, test, number);
            }
        },
        "Open " + test.name);
}

} // namespace kestrum::desktop
