#include "application/commands.h"
#include "application/full_screen.h"
#include "application/start_up.h"
#include "core/sheet_opening.h"
#include "engine/engine_calculation.h"
#include "engine/mode_switches.h"
#include "engine/port_calculators.h"
#include "engine/unit_conversion.h"
#include "files/company_file.h"
#include "files/gui_file.h"
#include "files/main_data_file.h"
#include "files/preloads.h"
#include "output/print_state.h"
#include "output/printer_choice.h"
#include "output/screen_capture.h"
#include "presentation/alignment.h"
#include "presentation/box_fonts.h"
#include "presentation/graph_options.h"
#include "presentation/links.h"
#include "presentation/mouse_pointer.h"
#include "presentation/screen_adaptation.h"
#include "sheet/flow_calculation.h"

#include <array>

namespace kestrum {

namespace {

template <int number>
void Open_Sheet(Session& session, Control& /*control*/) {
    Flow_Sheet& sheet = session.Sheet(number);
    Show_With_Caption(session, sheet);
    session.windows.Focus(sheet.Text108(7));
}

template <Screen_Kind kind>
void Show_Screen(Session& session, Control& /*control*/) {
    session.Show(session.The({kind}));
}

template <Alignment mode>
void Align(Session& session, Control& /*control*/) {
    session.numbers.align_mode = mode;
    Apply_Alignment(session);
    if (mode == Alignment::Right) {
        Calc_All_Flow_Tests(session); // the fixed decimals of this mode change the texts
    }
}

/// Asks for a font, beginning with that of a box, and gives it to the boxes.
template <auto box_of, auto apply>
void Choose_Box_Font(Session& session, Control& /*control*/) {
    Pick_Font(session, box_of(session).Present_Look().font);
    apply(session, Font_Size::As_Seen);
}

const Control& Box_Of_Main(Session& session) {
    return session.Main().Text104(3);
}

const Control& Box_Of_Sheet(Session& session) {
    return session.Sheet(1).Text104(3);
}

void Plain_Pointer(Session& session, Control& control) {
    Set_Plain_Pointer(session);
    control.Set_Enabled(false);
}

void Free_Aspect(Session& session, Control& control) {
    session.display.aspect_free = true;
    control.Set_Enabled(false);
}

void Full_Screen(Session& session, Control& /*control*/) {
    if (!session.display.full_screen_mode) {
        Use_Full_Screen(session);
    }
}

void Load_Engine(Session& session, Control& /*control*/) {
    session.file.path.clear();
    Load_Main_File(session, "");
    session.windows.Focus(session.Main().Text111(3));
}

void Save_Engine(Session& session, Control& /*control*/) {
    session.file.path.clear();
    Save_Main_File(session);
}

template <Line_Style style>
void Grid_Style(Session& session, Control& /*control*/) {
    Set_Grid_Style(session, style);
}

template <bool visible>
void Show_Preloads(Session& session, Control& /*control*/) {
    session.Main().Frame4.Set_Visible(visible);
}

template <bool visible>
void Show_Company(Session& session, Control& /*control*/) {
    session.Main().Frame96.Set_Visible(visible);
}

void Choose_Preload_File(Session& session, Control& control) {
    Choose_Preload(session, control.Index());
}

void Load_And_Hide_Preloads(Session& session, Control& /*control*/) {
    Load_Preloads(session);
    session.Main().Frame4.Set_Visible(false);
}

void Pick_Printer(Session& session, Control& control) {
    Print_Of(session).chosen_printer = control.Text();
}

void Show_About(Session& session, Control& /*control*/) {
    session.Message(session.title_text + " -- February 12, 2026\r\n" +
                        "Free software under the MIT licence; see the file LICENSE.",
                    Box_Icon::Information);
}

constexpr auto engine_commands = std::to_array<Command>({
    {"Command51", Run<Calc_Engine>},
    {"Load_Data", Load_Engine},
    {"Save_Data", Save_Engine},
    {"Command1", Open_Sheet<1>},
    {"Command2", Open_Sheet<2>},
    {"Command3", Open_Sheet<3>},
    {"Command4", Open_Sheet<4>},
    {"Command5", Open_Sheet<5>},
    {"Command50", Show_Screen<Screen_Kind::Compare>},
    {"Command33", Show_Screen<Screen_Kind::Report>},
    {"Command7", Run<Calc_Port_Volume>},
    {"Command8", Run<Calc_Port_Length>},
    {"Command9", Run<Calc_Port_Area>},
    {"Check1", Run<Apply_Mach_Mode>},
    {"Check2", Run<Convert_Units>},
    {"Check3", Run<Apply_Rpm_Mode>},
    {"AllFont", Choose_Box_Font<Box_Of_Main, Apply_All_Box_Main>},
    {"EntryFont", Choose_Box_Font<Box_Of_Main, Apply_Entry_Box_Main>},
    {"AllFont_Flow", Choose_Box_Font<Box_Of_Sheet, Apply_All_Box_Flow>},
    {"EntryFont_Flow", Choose_Box_Font<Box_Of_Sheet, Apply_Entry_Box_Flow>},
    {"Read_GUI", Run<Read_GUI>},
    {"Write_GUI", Run<Write_GUI>},
    {"AligLeft", Align<Alignment::Left>},
    {"AligCenter", Align<Alignment::Center>},
    {"AligRight", Align<Alignment::Right>},
    {"MouseP", Plain_Pointer},
    {"AspectRatio", Free_Aspect},
    {"FullScrRes", Full_Screen},
    {"ScrRes", Run<Show_Screen_Resolution>},
    {"FontColor", Run<Choose_Graph_Font_Colour>},
    {"Grid_Color", Run<Choose_Grid_Colour>},
    {"Grid_Long", Grid_Style<Line_Style::Solid>},
    {"Grid_Dash", Grid_Style<Line_Style::Dash>},
    {"Grid_Dot", Grid_Style<Line_Style::Dot>},
    {"Grid_None", Run<Switch_Grid_Off>},
    {"Preload", Show_Preloads<true>},
    {"Command45", Choose_Preload_File},
    {"Command46", Load_And_Hide_Preloads},
    {"Command44", Show_Preloads<false>},
    {"Co_Name", Show_Company<true>},
    {"Command95", Show_Company<false>},
    {"Load_Co_Name", Run<Load_Company_File>},
    {"Save_Co_Name", Run<Save_Company_File>},
    {"Load_Printer_Info", Run<Offer_Printers>},
    {"Combo1", Pick_Printer},
    {"Got_Printer", Run<Put_Printer_In_Force>},
    {"Command6", Run<Capture_Engine_Screen>},
    {"Command49", Run<Play_Wav_File>},
    {"Command10", Run<Show_Cam_Page>},
    {"Report_Problem", Run<Report_Problem>},
    {"Information_Request", Run<Request_Information>},
    {"About", Show_About},
    {"Exit", Run<Exit_Program>},
});

} // namespace

std::span<const Command> Engine_Commands() {
    return engine_commands;
}

} // namespace kestrum
