#include "application/commands.h"

#include "application/start_up.h"
#include "engine/engine_calculation.h"
#include "engine/mode_switches.h"
#include "engine/port_calculators.h"
#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "files/preloads.h"
#include "graph/compare_table.h"
#include "graph/graph_set_up.h"
#include "output/graph_logo.h"
#include "output/graph_mouse.h"
#include "output/graph_saving.h"
#include "output/screen_printing.h"
#include "presentation/alignment.h"
#include "presentation/graph_options.h"
#include "presentation/mouse_pointer.h"
#include "sheet/flow_calculation.h"
#include "sheet/flow_sort.h"

#include <algorithm>
#include <array>
#include <span>

namespace kestrum {

namespace {

struct Command {
    std::string_view control;
    Routine run;
};

// Main.

/// `Command1` to `Command5` open the sheet of their number.
void Open_Sheet(Session& session, Control& control) {
    const int number = control.Entry().array.back() - '0';
    Flow_Sheet& sheet = session.Sheet(number);
    sheet.caption = session.title_text + " -- Flow Test " + session.number.Fmt_Whole(number);
    session.Show(sheet);
    session.windows.Focus(sheet.Text108(7));
}

void Calculate_Engine(Session& session, Control& /*control*/) {
    Calc_Engine(session);
}

void Show_Compare(Session& session, Control& /*control*/) {
    session.Show(session.Form50());
}

void Show_Report(Session& session, Control& /*control*/) {
    session.Show(session.Form70());
}

void Volume(Session& session, Control& /*control*/) {
    Calc_Port_Volume(session);
}

void Length_Of_Port(Session& session, Control& /*control*/) {
    Calc_Port_Length(session);
}

void Area(Session& session, Control& /*control*/) {
    Calc_Port_Area(session);
}

void Mach_Mode(Session& session, Control& /*control*/) {
    Apply_Mach_Mode(session);
}

void Metric_Mode(Session& session, Control& /*control*/) {
    Convert_Units(session);
}

void Rpm_Mode(Session& session, Control& /*control*/) {
    Apply_Rpm_Mode(session);
}

template <int mode>
void Align(Session& session, Control& /*control*/) {
    session.number.align_mode = mode;
    Apply_Alignment(session);
    if (mode == static_cast<int>(Alignment::Right)) {
        // The fixed decimals of this mode change the texts.
        for (int number = 1; number <= sheet_count; ++number) {
            Calc_Flow_Test(session, session.Sheet(number));
        }
    }
}

void Plain_Pointer(Session& session, Control& control) {
    Set_Plain_Pointer(session);
    control.Set_Enabled(false);
}

void Free_Aspect(Session& session, Control& control) {
    session.aspect_free = 1;
    control.Set_Enabled(false);
}

void Load_Engine(Session& session, Control& /*control*/) {
    session.file_path.clear();
    Load_Main_File(session, "");
    session.windows.Focus(session.Main().Text111(3));
}

void Save_Engine(Session& session, Control& /*control*/) {
    session.file_path.clear();
    Save_Main_File(session);
}

void Graph_Font_Colour(Session& session, Control& /*control*/) {
    Choose_Graph_Font_Colour(session);
}

void Grid_Colour(Session& session, Control& /*control*/) {
    Choose_Grid_Colour(session);
}

template <int style>
void Grid_Style(Session& session, Control& /*control*/) {
    Set_Grid_Style(session, style);
}

void No_Grid(Session& session, Control& /*control*/) {
    Switch_Grid_Off(session);
}

void Show_Preloads(Session& session, Control& /*control*/) {
    session.Main().Frame4.Set_Visible(true);
}

void Choose_Preload_File(Session& session, Control& control) {
    Choose_Preload(session, control.Index());
}

void Load_And_Hide_Preloads(Session& session, Control& /*control*/) {
    Load_Preloads(session);
    session.Main().Frame4.Set_Visible(false);
}

void Hide_Preloads(Session& session, Control& /*control*/) {
    session.Main().Frame4.Set_Visible(false);
}

void Show_Company(Session& session, Control& /*control*/) {
    session.Main().Frame96.Set_Visible(true);
}

void Hide_Company(Session& session, Control& /*control*/) {
    session.Main().Frame96.Set_Visible(false);
}

void Show_About(Session& session, Control& /*control*/) {
    session.Message(session.title_text + " -- February 12, 2026\r\n" +
                        "Free software under the MIT licence; see the file LICENSE.",
                    Box_Icon::Information);
}

void Leave_Program(Session& session, Control& /*control*/) {
    Exit_Program(session);
}

constexpr auto main_commands = std::to_array<Command>({
    {"Command51", Calculate_Engine},
    {"Load_Data", Load_Engine},
    {"Save_Data", Save_Engine},
    {"Command1", Open_Sheet},
    {"Command2", Open_Sheet},
    {"Command3", Open_Sheet},
    {"Command4", Open_Sheet},
    {"Command5", Open_Sheet},
    {"Command50", Show_Compare},
    {"Command33", Show_Report},
    {"Command7", Volume},
    {"Command8", Length_Of_Port},
    {"Command9", Area},
    {"Check1", Mach_Mode},
    {"Check2", Metric_Mode},
    {"Check3", Rpm_Mode},
    {"AligLeft", Align<0>},
    {"AligCenter", Align<2>},
    {"AligRight", Align<1>},
    {"MouseP", Plain_Pointer},
    {"AspectRatio", Free_Aspect},
    {"FontColor", Graph_Font_Colour},
    {"Grid_Color", Grid_Colour},
    {"Grid_Long", Grid_Style<0>},
    {"Grid_Dash", Grid_Style<1>},
    {"Grid_Dot", Grid_Style<2>},
    {"Grid_None", No_Grid},
    {"Preload", Show_Preloads},
    {"Command45", Choose_Preload_File},
    {"Command46", Load_And_Hide_Preloads},
    {"Command44", Hide_Preloads},
    {"Co_Name", Show_Company},
    {"Command95", Hide_Company},
    {"About", Show_About},
    {"Exit", Leave_Program},
});

// Sheets.

Flow_Sheet& Sheet_Of(Session& session, const Control& control) {
    return session.Sheet(control.Owner().Name().back() - '0');
}

void Calculate_Sheet(Session& session, Control& control) {
    Calc_Flow_Test(session, Sheet_Of(session, control));
}

void Sort_Rows(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    Sort_Flow_Sheet(session, sheet);
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

void Show_Page_2(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    sheet.Frame1.Set_Visible(true);
    session.windows.Focus(sheet.Text207(last_lift_row)); // the last row, not the first
}

void Show_Page_1(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    sheet.Frame1.Set_Visible(false);
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

void Load_Sheet(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    Load_Flow_File(session, sheet, "");
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

void Save_Sheet(Session& session, Control& control) {
    Save_Flow_File(session, Sheet_Of(session, control));
}

void Hide_Screen(Session& session, Control& control) {
    session.Hide(control.Owner());
}

constexpr auto sheet_commands = std::to_array<Command>({
    {"Command1", Calculate_Sheet},
    {"Sort", Sort_Rows},
    {"NextPage", Show_Page_2},
    {"Exit", Show_Page_1},
    {"Load_Data", Load_Sheet},
    {"Save_Data", Save_Sheet},
    {"subend", Hide_Screen},
});

// Compare and graph.

void Calculate_Table(Session& session, Control& /*control*/) {
    Fill_Compare_Table(session);
}

void Draw_New_Graph(Session& session, Control& /*control*/) {
    Draw_Fresh_Graph(session);
}

void Add_To_Graph(Session& session, Control& /*control*/) {
    Draw_Graph_Overlay(session);
}

/// The four boxes are copied on every click.
template <int Session::*variable>
void Copy_Switch(Session& session, Control& control) {
    session.*variable = control.Value();
}

void Switch_Logo(Session& session, Control& /*control*/) {
    Toggle_Logo(session);
}

void Pick_Line_Colour(Session& session, Control& /*control*/) {
    if (const auto colour = Get_Color(session)) {
        session.draw_line_color = *colour;
    }
}

void Pick_Line_Width(Session& session, Control& control) {
    session.draw_line_width = session.number.Read_Integer(control.Text());
}

void Save_Picture(Session& session, Control& /*control*/) {
    Save_Graph(session);
}

void Print_Owner(Session& session, Control& control) {
    Print_Screen(session, control.Owner());
}

constexpr auto compare_commands = std::to_array<Command>({
    {"Command1", Calculate_Table},
    {"Command2", Draw_New_Graph},
    {"Graph_Plus", Add_To_Graph},
    {"Check1", Copy_Switch<&Session::show_quarter_diameter_line>},
    {"Check2", Copy_Switch<&Session::auto_x_lines>},
    {"Check3", Copy_Switch<&Session::show_data_points>},
    {"Check4", Copy_Switch<&Session::show_big>},
    {"subend", Hide_Screen},
});

constexpr auto graph_commands = std::to_array<Command>({
    {"Logo", Switch_Logo},
    {"Command4", Pick_Line_Colour},
    {"Combo1", Pick_Line_Width},
    {"Command3", Save_Picture},
    {"Command2", Print_Owner},
    {"Command1", Hide_Screen},
});
constexpr auto report_commands = std::to_array<Command>({{"subend", Hide_Screen}});

std::span<const Command> Commands_Of(const Screen& screen) {
    const std::string& name = screen.Name();
    if (name == "Main") {
        return main_commands;
    }
    if (name == "Form50") {
        return compare_commands;
    }
    if (name == "Form60") {
        return graph_commands;
    }
    return name == "Form70" ? std::span<const Command>(report_commands)
                            : std::span<const Command>(sheet_commands);
}

} // namespace

Routine Routine_Of(const Control& control) {
    const auto commands = Commands_Of(control.Owner());
    const auto found = std::ranges::find(commands, control.Entry().array, &Command::control);
    return found == commands.end() ? nullptr : found->run;
}

} // namespace kestrum
