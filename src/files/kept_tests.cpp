#include "files/kept_tests.h"

#include "core/sheet_opening.h"
#include "files/flow_data_file.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "sheet/flow_calculation.h"

namespace kestrum {

namespace {

std::string Folder_Of_Tests(const Session& session) {
    return Join_Path(session.surroundings.folder, "kept-tests");
}

std::string Path_Of_Test(const Session& session, std::string_view name) {
    return Join_Path(Folder_Of_Tests(session), std::string(name) + ".dat");
}

std::string Name_In_Last_Session(int sheet_number) {
    return "last-" + std::string(1, static_cast<char>('0' + sheet_number));
}

/// The first line of a kept test, a comment to every reader: what its numbers are written in.
std::string Notation_Of(Session& session) {
    return std::string(session.Main().Is_Metric() ? "; metric" : "; US") + " " +
           session.numbers.Point() + "\r\n";
}

} // namespace

bool Is_As_Brought(Session& session, const Flow_Sheet& sheet) {
    if (session.numbers.comma_mode != 0 || session.Main().Is_Metric()) {
        return false; // the program brings its sample in another notation
    }
    Flow_Sheet fresh(sheet.Id().number);
    Calc_Flow_Test(session, fresh);
    return Flow_File_Text(session, fresh) == Flow_File_Text(session, sheet);
}

void Keep_Test(Session& session, const Flow_Sheet& sheet, std::string_view name) {
    try {
        if (Make_Folder(Folder_Of_Tests(session))) {
            Write_Whole_File(Path_Of_Test(session, name),
                             Notation_Of(session) + Flow_File_Text(session, sheet));
        }
    } catch (const Run_Time_Error&) {
        return;
    }
}

void Keep_Last_Session(Session& session) {
    for (int number = 1; number <= sheet_count; ++number) {
        const std::string name = Name_In_Last_Session(number);
        Remove_File(Path_Of_Test(session, name));
        if (session.Is_Loaded(Screen_Id{Screen_Kind::Sheet, number}) &&
            !Is_As_Brought(session, session.Sheet(number))) {
            Keep_Test(session, session.Sheet(number), name);
        }
    }
}

bool Has_Kept_Test(const Session& session, std::string_view name) {
    return File_Exists(Path_Of_Test(session, name));
}

bool Has_Last_Session(const Session& session) {
    for (int number = 1; number <= sheet_count; ++number) {
        if (Has_Kept_Test(session, Name_In_Last_Session(number))) {
            return true;
        }
    }
    return false;
}

void Bring_Back_Test(Session& session, Flow_Sheet& sheet, std::string_view name) {
    try {
        const std::string bytes = Read_Whole_File(Path_Of_Test(session, name));
        const std::string notation = Notation_Of(session);
        const std::string_view first = std::string_view(bytes).substr(0, bytes.find('\n') + 1);
        const std::string_view units = first.substr(0, first.rfind(' '));
        if (units != notation.substr(0, notation.rfind(' '))) {
            session.Message("This test was kept in other units. Switch the units on Main, then "
                            "bring it back.",
                            Box_Icon::Exclamation);
            return;
        }
        Restore_Flow_Inputs(session, sheet, bytes, first == notation);
    } catch (const Run_Time_Error& failure) {
        session.Message("The test could not be brought back. " + failure.Description(),
                        Box_Icon::Exclamation);
        return;
    }
    Calc_Flow_Test(session, sheet);
}

void Bring_Back_Last_Session(Session& session) {
    for (int number = 1; number <= sheet_count; ++number) {
        const std::string name = Name_In_Last_Session(number);
        if (Has_Kept_Test(session, name)) {
            Bring_Back_Test(session, session.Sheet(number), name);
            Show_With_Caption(session, session.Sheet(number));
        }
    }
}

} // namespace kestrum
