#include "screens/flow_sheet.h"

#include "screens/tips.h"

#include <array>
#include <string>

namespace kestrum {

namespace {

using enum Control_Kind;
using enum Key_Filter;
using enum Leave_Check;
using enum Leave_Step;
using enum Side;
using enum Quantity;
using Role = Cell_Role;

// Kinds of cell that recur.

constexpr Control_Entry Dimension(std::string_view array, int row, std::string_view text) {
    return Input(array, row, text).Filter(Unsigned_Decimal).Check(Not_Zero).Selects();
}

constexpr Control_Entry Corner(std::string_view array, int row) {
    return Input(array, row, "0.4").Filter(Unsigned_Decimal).Check(Not_Blank).Selects();
}

constexpr Control_Entry Free_Text(std::string_view array, int row, std::string_view text) {
    return Input(array, row, text).Selects();
}

constexpr Control_Entry Lift_Inputs(std::string_view array, std::string_view texts) {
    return Inputs(array, zero_lift_row, last_lift_row, texts)
        .Filter(Unsigned_Decimal)
        .Check(Not_Blank)
        .Selects();
}

constexpr Control_Entry Lift_Results(std::string_view array) {
    return Results(array, zero_lift_row, last_lift_row, "0");
}

constexpr Control_Entry Heading(std::string_view array, std::string_view lines) {
    return Captions(array, 13, 15, lines);
}

constexpr std::string_view sample_lifts =
    "0|50|100|150|200|250|300|350|400|500|600|700|800|900|1000";

constexpr auto sheet_table = std::to_array<Control_Entry>({
    // Page 1, column by column.
    Caption("Text101", 0, "Part #"),
    Caption("Text101", 1, "Port Vol In").Of(Intake),
    Caption("Text101", 2, "Mean area"),
    Caption("Text101", 3, "In. Valve").Of(Intake),
    Captions("Text101", 4, 5, "Stem Dia|Valve Area"),
    Captions("Text101", 6, 8, "Throat dia In|Throat area In.|In. Cntr Length").Of(Intake),
    Caption("Text101", 9, "0.25D In./Ex"),
    Caption("Text101", 10, "Ex. Pipe Used?").Of(Exhaust),
    Caption("Text101", 11, "Avg CFM"),
    Blanks("Text101", 12, 12),
    Heading("Text101", "Actual|Valve|Lift Inch"),
    Lift_Inputs("Text101", sample_lifts).Check(Not_Blank, Copy_Lift).Of(Lift),

    Free_Text("Text102", 0, "E7TE"),
    Dimension("Text102", 1, "203").Of(Intake, Role::Port_Volume),
    Result("Text102", 2, "2.306").Selects().Of(Intake, Role::Mean_Area),
    Dimension("Text102", 3, "2.02").Of(Intake, Role::Valve_Diameter),
    Dimension("Text102", 4, "0.342").Of(Intake, Role::Stem_Diameter),
    Result("Text102", 5, "3.205").Of(Intake, Role::Valve_Area),
    Dimension("Text102", 6, "1.55").Of(Intake, Role::Throat_Diameter),
    Result("Text102", 7, "1.89").Of(Intake, Role::Throat_Area),
    Dimension("Text102", 8, "5.37").Of(Intake, Role::Port_Length),
    Result("Text102", 9, "505").Of(Intake, Role::Quarter_Diameter),
    Free_Text("Text102", 10, "No").Of(Exhaust),
    Result("Text102", 11, "").Of(Intake, Role::Mean_Flow),
    Blanks("Text102", 12, 12),
    Heading("Text102", "CFM|Corrected|Intake").Of(Intake),
    Lift_Results("Text102").Of(Intake, Role::Corrected_Flow),

    Caption("Text103", 0, "Bore Dia"),
    Caption("Text103", 1, "Port Vol Ex").Of(Exhaust),
    Caption("Text103", 2, "Mean area"),
    Caption("Text103", 3, "Ex. Valve").Of(Exhaust),
    Captions("Text103", 4, 5, "Stem Dia|Valve Area"),
    Captions("Text103", 6, 8, "Throat dia Ex|Throat area Ex|Ex Cntr Length").Of(Exhaust),
    // The exhaust's figure stands under the other exhaust figures, in the fourth column.
    Result("Text103", 9, "400").At(3, 9).Of(Exhaust, Role::Quarter_Diameter),
    Blanks("Text103", 10, 10),
    Result("Text103", 11, "").Of(Exhaust, Role::Mean_Flow),
    Blanks("Text103", 12, 12),
    Heading("Text103", "CFM|Corrected|Exhaust").Of(Exhaust),
    Lift_Results("Text103").Of(Exhaust, Role::Corrected_Flow),

    Dimension("Text104", 0, "4.11").Of(Length),
    Dimension("Text104", 1, "75").Of(Exhaust, Role::Port_Volume),
    Result("Text104", 2, "1.589").Of(Exhaust, Role::Mean_Area),
    Dimension("Text104", 3, "1.6").Of(Exhaust, Role::Valve_Diameter),
    Dimension("Text104", 4, "0.342").Of(Exhaust, Role::Stem_Diameter),
    Result("Text104", 5, "2.011").Of(Exhaust, Role::Valve_Area),
    Dimension("Text104", 6, "1.28").Of(Exhaust, Role::Throat_Diameter),
    Result("Text104", 7, "1.29").Of(Exhaust, Role::Throat_Area),
    Dimension("Text104", 8, "2.88").Of(Exhaust, Role::Port_Length),
    Blanks("Text104", 9, 9).At(2, 9),
    Blanks("Text104", 10, 12),
    Heading("Text104", "Effective|Lift Inch|In.").Of(Intake),
    Lift_Results("Text104").Of(Intake, Role::Effective_Lift),

    Caption("Text105", 0, "In corner top").Tip(tips::corner_in_top).Of(Intake),
    Caption("Text105", 1, "In corner bot").Tip(tips::corner_in_bottom).Of(Intake),
    Caption("Text105", 2, "In Width").Of(Intake),
    Caption("Text105", 3, "Ex. Width").Of(Exhaust),
    Caption("Text105", 4, "Area Ratio").Tip(tips::area_ratio_in),
    Caption("Text105", 5, "Area Ratio").Tip(tips::area_ratio_ex),
    Caption("Text105", 6, "# Int Valves").Of(Intake),
    Blanks("Text105", 7, 10),
    Caption("Text105", 11, "Total CFM"),
    Blanks("Text105", 12, 12),
    Heading("Text105", "Effective|Lift Inch|Ex").Of(Exhaust),
    Lift_Results("Text105").Of(Exhaust, Role::Effective_Lift),

    Corner("Text106", 0).Of(Intake, Role::Top_Corner),
    Corner("Text106", 1).Of(Intake, Role::Bottom_Corner),
    Dimension("Text106", 2, "1.215").Of(Intake, Role::Port_Width),
    Dimension("Text106", 3, "1.37").Of(Exhaust, Role::Port_Width),
    // A caption with the handlers of the cells above it; it stays locked all the same.
    Caption("Text106", 4, "Intake").Filter(Unsigned_Decimal).Check(Not_Blank).Selects().Of(Intake),
    Caption("Text106", 5, "Exhaust").Of(Exhaust),
    Input("Text106", 6, "1")
        .Filter(Digits_Only)
        .Check(Not_Blank, Intake_Count)
        .Selects()
        .Of(Intake),
    Captions("Text106", 7, 8, "Test|Correct"),
    Blanks("Text106", 9, 10),
    Result("Text106", 11, "").Of(Intake, Role::Total_Flow),
    Caption("Text106", 12, "CFM").Of(Intake),
    Heading("Text106", "Observed|Flow|Intake").Of(Intake),
    Lift_Inputs("Text106", "0|35.8|73|110|145|169|193.5|211.5|230|257.4|268|277|282|284|285")
        .Of(Intake, Role::Observed_Flow),

    Caption("Text107", 0, "Ex corner top").Tip(tips::corner_ex_top).Of(Exhaust),
    Caption("Text107", 1, "Ex corner bot").Tip(tips::corner_ex_bottom).Of(Exhaust),
    Caption("Text107", 2, "In Height").Of(Intake),
    Caption("Text107", 3, "Ex Height").Of(Exhaust),
    Result("Text107", 4, "0.812").Of(Intake, Role::Area_Ratio),
    Result("Text107", 5, "0.896").Of(Exhaust, Role::Area_Ratio),
    Caption("Text107", 6, "# Exh Valves").Of(Exhaust),
    Captions("Text107", 7, 8, "Pressure|To:-------"),
    Blanks("Text107", 9, 10),
    Result("Text107", 11, "").Of(Exhaust, Role::Total_Flow),
    Caption("Text107", 12, "CFM").Of(Exhaust),
    Heading("Text107", "Observed|Flow|Exhaust").Of(Exhaust),
    Lift_Inputs("Text107", "0|24.6|52|77|109|136.6|147.7|161|179|187.9|188.6|198.6|207|215|222")
        .Of(Exhaust, Role::Observed_Flow),

    Corner("Text108", 0).Of(Exhaust, Role::Top_Corner),
    Corner("Text108", 1).Of(Exhaust, Role::Bottom_Corner),
    Dimension("Text108", 2, "2.17").Of(Intake, Role::Port_Height),
    Dimension("Text108", 3, "1.34").Of(Exhaust, Role::Port_Height),
    Blanks("Text108", 4, 5),
    Input("Text108", 6, "1")
        .Filter(Digits_Only)
        .Check(Not_Blank, Exhaust_Count)
        .Selects()
        .Of(Exhaust),
    Dimension("Text108", 7, "28"),
    Dimension("Text108", 8, "28").Check(Not_Blank),
    Blanks("Text108", 9, 12),
    Heading("Text108", "Actual|Valve|Lift Inch"),
    Results("Text108", zero_lift_row, last_lift_row, sample_lifts).Of(Lift),

    Blanks("Text109", 0, 1),
    Caption("Text109", 2, "Area").Tip(tips::port_in),
    Caption("Text109", 3, "Area").Tip(tips::port_ex),
    Blanks("Text109", 4, 4),
    Captions("Text109", 5, 6, "CR|Max Lift"),
    Blanks("Text109", 7, 7),
    Caption("Text109", 8, "Correx"),
    Blanks("Text109", 9, 12),
    Heading("Text109", "CFM|Sq In|In.").Of(Intake),
    Lift_Results("Text109").Of(Intake, Role::Flow_Per_Area),

    Blanks("Text110", 0, 1),
    Result("Text110", 2, "2.602").Of(Intake, Role::Port_Area),
    Result("Text110", 3, "1.801").Of(Exhaust, Role::Port_Area),
    Blanks("Text110", 4, 4),
    Dimension("Text110", 5, "9.0").Of(Ratio),
    Dimension("Text110", 6, "700").Of(Lift),
    Blanks("Text110", 7, 7),
    Result("Text110", 8, "1").Of(Ratio),
    Blanks("Text110", 9, 12),
    Heading("Text110", "CFM|Sq In|Ex.").Of(Exhaust),
    Lift_Results("Text110").Of(Exhaust, Role::Flow_Per_Area),

    Blanks("Text111", 0, 1),
    Result("Text111", 2, "").Of(Intake, Role::Bottom_Loss),
    Result("Text111", 3, "").Of(Exhaust, Role::Bottom_Loss),
    Blanks("Text111", 4, 5),
    Captions("Text111", 6, 8, "Eng Bore|Ratio Throat|Ratio Valve"),
    Blanks("Text111", 9, 9),
    Captions("Text111", 10, 11, "Required|Existing"),
    Blanks("Text111", 12, 12),
    Heading("Text111", "SAE|CD|In").Of(Intake),
    Lift_Results("Text111").Of(Intake, Role::Discharge),

    Blanks("Text112", 0, 1),
    Result("Text112", 2, "").Of(Intake, Role::Top_Loss),
    Result("Text112", 3, "").Of(Exhaust, Role::Top_Loss),
    Blanks("Text112", 4, 5),
    Dimension("Text112", 6, "4.00").Of(Length),
    Captions("Text112", 7, 8, "Valve Int|Bore Int").Of(Intake),
    Blanks("Text112", 9, 9),
    Captions("Text112", 10, 11, "In/Ex Rat|In/Ex Rat"),
    Blanks("Text112", 12, 12),
    Heading("Text112", "SAE|CD|Ex").Of(Exhaust),
    Lift_Results("Text112").Of(Exhaust, Role::Discharge),

    Blanks("Text113", 0, 6),
    Result("Text113", 7, "").Of(Intake, Role::Throat_Ratio),
    Result("Text113", 8, "").Of(Intake, Role::Bore_Ratio),
    Blanks("Text113", 9, 9),
    Results("Text113", 10, 12, "").Of(Ratio),
    Heading("Text113", "In/Ex|Flow|Ratio"),
    Lift_Results("Text113").Of(Ratio),

    Blanks("Text114", 0, 6),
    Captions("Text114", 7, 8, "Valve Exh|Bore Exh").Of(Exhaust),
    Blanks("Text114", 9, 11),
    Caption("Text114", 12, "fps").Of(Intake),
    Heading("Text114", "Mean|Port|Vel In.").Of(Intake),
    Lift_Results("Text114").Of(Intake, Role::Port_Velocity),

    Blanks("Text115", 0, 6),
    Result("Text115", 7, "").Of(Exhaust, Role::Throat_Ratio),
    Result("Text115", 8, "").Of(Exhaust, Role::Bore_Ratio),
    Blanks("Text115", 9, 11),
    Caption("Text115", 12, "fps").Of(Exhaust),
    Heading("Text115", "Mean|Port|Vel Ex.").Of(Exhaust),
    Lift_Results("Text115").Of(Exhaust, Role::Port_Velocity),

    Lone_Field("Text39", Cell_Use::Caption, "").At(0, 31, 15),

    // Page 2.
    Lone(Frame, "Frame1", "").Hidden().At(0, 0, 15, 32),
    Caption("Text201", 3, "In. Valve").Of(Intake).In("Frame1"),
    Captions("Text201", 4, 5, "Seat Angle|Seat Width").In("Frame1"),
    Heading("Text201", "Effective|Valve|Area In.").Of(Intake).In("Frame1"),
    Lift_Results("Text201").Of(Intake, Role::Effective_Area).In("Frame1"),

    Blanks("Text202", 3, 3).In("Frame1"),
    Dimension("Text202", 4, "52").Of(Intake, Role::Seat_Angle).In("Frame1"),
    Dimension("Text202", 5, "0.045").Of(Intake, Role::Seat_Width).In("Frame1"),
    Heading("Text202", "Effective|Valve|Area Ex.").Of(Exhaust).In("Frame1"),
    Lift_Results("Text202").Of(Exhaust, Role::Effective_Area).In("Frame1"),

    Caption("Text203", 3, "Ex. Valve").Of(Exhaust).In("Frame1"),
    Captions("Text203", 4, 5, "Seat Angle|Seat Width").In("Frame1"),
    Heading("Text203", "Effective|Valve|Vel In.").Of(Intake).In("Frame1"),
    Lift_Results("Text203").Of(Intake, Role::Effective_Velocity).In("Frame1"),

    Blanks("Text204", 3, 3).In("Frame1"),
    Dimension("Text204", 4, "42").Of(Exhaust, Role::Seat_Angle).In("Frame1"),
    Dimension("Text204", 5, "0.065").Of(Exhaust, Role::Seat_Width).In("Frame1"),
    Heading("Text204", "Effective|Valve|Vel Ex.").Of(Exhaust).In("Frame1"),
    Lift_Results("Text204").Of(Exhaust, Role::Effective_Velocity).In("Frame1"),

    Heading("text205", "Effective|SAE|CD In.").Of(Intake).In("Frame1"),
    Lift_Results("text205").Of(Intake, Role::Effective_Discharge).In("Frame1"),
    Heading("Text206", "Effective|SAE|CD Ex.").Of(Exhaust).In("Frame1"),
    Lift_Results("Text206").Of(Exhaust, Role::Effective_Discharge).In("Frame1"),

    Heading("Text207", "|Swirl|").In("Frame1"),
    Lift_Inputs("Text207",
                "0|1250|1600|1750|1525|1250|1325|1000|1000|1000|1050|1250|1400|1250|1100")
        .Filter(Signed_Decimal)
        .In("Frame1"),

    Heading("Text208", "L / D|Ratio|Intake").Of(Intake).In("Frame1"),
    Lift_Results("Text208").Of(Intake, Role::Lift_Ratio).In("Frame1"),
    Heading("Text209", "L / D|Ratio|Exhaust").Of(Exhaust).In("Frame1"),
    Lift_Results("Text209").Of(Exhaust, Role::Lift_Ratio).In("Frame1"),

    Heading("Text210", "Floating|Depression|Intake").Of(Intake).In("Frame1"),
    Lift_Inputs("Text210", "0").Of(Intake, Role::Depression).In("Frame1"),
    Heading("Text211", "Floating|Depression|Exhaust").Of(Exhaust).In("Frame1"),
    Lift_Inputs("Text211", "0").Of(Exhaust, Role::Depression).In("Frame1"),

    Lone(Label, "Label38", "Comments:").In("Frame1").At(5, 3),
    Lone_Field("Text38", Cell_Use::Input, "").Many_Lines().Selects().In("Frame1").At(5, 4, 6, 8),
    Push_Button("Exit", "E&xit Page 2").In("Frame1").At(0, 8, 2, 2),

    Push_Button("Command1", "&Calculate").At(12, 0, 3, 2).Tip(tips::calculate),
    Push_Button("Sort", "Sort Data").At(12, 2, 3, 2).Tip(tips::sort),
    Push_Button("NextPage", "For Valve Seat Dimensions, Swirl, and Floating Depression Entry Next "
                            "Page (2)")
        .At(12, 4, 3, 3),
    Lone(Label, "Label7", "").Hidden(),
    Members(Label, "Label2", 0, 7, ""),

    Menu("", "File", "&File"),
    Menu("File", "Load_Data", "&Load Previous Save Data").Keys("Ctrl+O"),
    Menu("File", "Save_Data", "&Save Data to File").Keys("Ctrl+S"),
    Menu("File", "Import_Data", "Import Flow Data"),
    Menu("Import_Data", "Import_PTPFA", "Import Flow Data From a PTPFA File"),
    Menu("Import_Data", "Import_Flow_Data_Files",
         "Import Flow Data From a 'FLW' or 'DFW' or DeskTop Dyno, or Dynomation File"),
    Menu("File", "Export", "Export Flow Data in 'DFW' Format"),
    Menu("File", "Import_CSV", "Import Flow Data From a CSV File"),
    Menu("File", "Export_CSV", "Export Flow Data in CSV Format"),
    Menu("File", "subend", "Quit / Close").Keys("Ctrl+W"),
    Menu("File", "PrtSc", "&Print Screen to JPG / Image"),
    Menu("File", "Print_Sheet", "Print Flow Sheet for Customer").Keys("Ctrl+P"),
});

} // namespace

Flow_Sheet::Flow_Sheet(int number) : Screen({Screen_Kind::Sheet, number}, sheet_table) {
    for (Control& control : Controls()) {
        const Control_Entry& entry = control.Entry();
        if (entry.role != Cell_Role::None) {
            Slot& slot = slots_[Slot_Of(entry.side, entry.role)];
            slot = {.cell = &control, .column = &Array(entry.array)};
        }
    }
}

std::size_t Flow_Sheet::Slot_Of(Side side, Cell_Role role) {
    return static_cast<std::size_t>(side) * cell_role_count + static_cast<std::size_t>(role);
}

Control& Flow_Sheet::Cell(Side side, Cell_Role role) const {
    return *slots_[Slot_Of(side, role)].cell;
}

const Control_Array& Flow_Sheet::Column(Side side, Cell_Role role) const {
    return *slots_[Slot_Of(side, role)].column;
}

} // namespace kestrum
