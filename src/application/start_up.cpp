#include "application/start_up.h"

#include "application/full_screen.h"
#include "base/text.h"
#include "engine/mode_switches.h"
#include "files/main_data_file.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "presentation/menu_marks.h"
#include "presentation/mouse_pointer.h"
#include "sheet/flow_calculation.h"

#include <vector>

namespace kestrum {

namespace {

void Detect_Separator(Session& session) {
    session.numbers.locale_point = session.surroundings.decimal_point;
    session.numbers.comma_mode = session.numbers.locale_point == "," ? 1 : 0;
}

void Take_Graph_Switches(Session& session) {
    const Compare_Screen& compare = session.Form50();
    session.settings.show_quarter_diameter_line = Switch_Of(compare.Check1.Value());
    session.settings.auto_x_lines = Switch_Of(compare.Check2.Value());
    session.settings.show_data_points = Switch_Of(compare.Check3.Value());
    session.settings.show_big = Switch_Of(compare.Check4.Value());
}

void Handle_Switches(Session& session) {
    const std::string line = Lower_Copy(session.surroundings.command_line);
    const auto given = [&line](std::string_view name) {
        return line.find(name) != std::string::npos;
    };
    if (given("/fs") || given("/fn")) {
        session.display.full_screen_mode = true;
        session.display.aspect_free = !given("/fs");
        Use_Full_Screen(session);
    }
    if (given("/mp")) {
        session.Main().MouseP.Set_Enabled(false);
        Set_Plain_Pointer(session);
    }
}

std::string Session_File(const Session& session) {
    return Join_Path(session.surroundings.folder, "zxqw1234.sav");
}

void Copy_Aside(const std::string& path, const std::string& kept, const std::string& folder) {
    const std::string bytes = Read_Whole_File(path);
    if (File_Exists(kept)) {
        if (Read_Whole_File(kept) == bytes) {
            return; // of a start before, which no exit followed
        }
        static_cast<void>(Move_To_Fresh_Name(kept, folder));
    }
    Write_Whole_File(kept, bytes);
}

/// A file that could not be read to its end is kept, for the exit writes over it.
void Keep_Bad_File(const std::string& path, const std::string& folder) {
    const std::string kept = path + ".bak";
    try {
        Copy_Aside(path, kept, folder);
    } catch (const Run_Time_Error&) {
        Move_File(path, kept); // longer than anything that is read; nothing may stop the start
    }
}

void Restore_Last_Session(Session& session) {
    session.file.path = Session_File(session);
    const std::string path = session.file.path;
    if (Can_Be_Read(path) && !Load_Session_File(session)) {
        Keep_Bad_File(path, session.surroundings.folder);
    }
}

/// Without the folder there is nothing to save into, and nothing is said. The exit may write
/// twice; a file that one of the writings has brought to the disk is there.
void Write_Session_File(Session& session) {
    session.file.path = Session_File(session);
    const bool is_saved = File_Exists(session.surroundings.folder) && Save_Main_File(session);
    session.exit_saved = is_saved || session.exit_saved.value_or(false);
}

/// All screens are there from the start on, seen or not.
void Create_All_Screens(Session& session) {
    for (int number = 1; number <= sheet_count; ++number) {
        static_cast<void>(session.Sheet(number));
    }
    static_cast<void>(session.Form50());
    static_cast<void>(session.Form60());
    static_cast<void>(session.Form70());
}

} // namespace

void Start_Up(Session& session) {
    Detect_Separator(session); // before the first screen, whose texts show the separator
    Apply_Mach_Mode(session);
    Apply_Rpm_Mode(session);
    Create_All_Screens(session);
    Take_Graph_Switches(session);
    if (session.numbers.comma_mode != 0) {
        session.Message("Program Set for Decimal Point to be >>,<< [Comma] ",
                        Box_Icon::Information);
    }
    Calc_All_Flow_Tests(session);
    session.display.dpi = session.surroundings.display.dpi;
    Handle_Switches(session);
    Restore_Last_Session(session);
    Mark_Choices(session);
    session.Show(session.Main());
}

void Close_Main(Session& session) {
    Write_Session_File(session);
    std::vector<Screen*> loaded;
    session.For_Each_Loaded([&loaded](Screen& screen) { loaded.push_back(&screen); });
    for (Screen* const screen : loaded) {
        session.Unload(*screen);
    }
}

void Exit_Program(Session& session) {
    // Unloading `Main` runs the exit once more; both writings see the same screens.
    Write_Session_File(session);
    Close_Main(session);
}

} // namespace kestrum
