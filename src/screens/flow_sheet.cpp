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
    Captions("Text101", 0, 11,
             "Part #|Port Vol In|Mean area|In. Valve|Stem Dia|Valve Area|Throat dia In|"
             "Throat area In.|In. Cntr Length|0.25D In./Ex|Ex. Pipe Used?|Avg CFM"),
    Blanks("Text101", 12, 12),
    Heading("Text101", "Actual|Valve|Lift Inch"),
    Lift_Inputs("Text101", sample_lifts).Check(Not_Blank, Copy_Lift),

    Free_Text("Text102", 0, "E7TE"),
    Dimension("Text102", 1, "203"),
    Result("Text102", 2, "2.306").Selects(),
    Dimension("Text102", 3, "2.02"),
    Dimension("Text102", 4, "0.342"),
    Result("Text102", 5, "3.205"),
    Dimension("Text102", 6, "1.55"),
    Result("Text102", 7, "1.89"),
    Dimension("Text102", 8, "5.37"),
    Result("Text102", 9, "505"),
    Free_Text("Text102", 10, "No"),
    Result("Text102", 11, ""),
    Blanks("Text102", 12, 12),
    Heading("Text102", "CFM|Corrected|Intake"),
    Lift_Results("Text102"),

    Captions("Text103", 0, 8,
             "Bore Dia|Port Vol Ex|Mean area|Ex. Valve|Stem Dia|Valve Area|Throat dia Ex|"
             "Throat area Ex|Ex Cntr Length"),
    // The exhaust's figure stands under the other exhaust figures, in the fourth column.
    Result("Text103", 9, "400").At(3, 9),
    Blanks("Text103", 10, 10),
    Result("Text103", 11, ""),
    Blanks("Text103", 12, 12),
    Heading("Text103", "CFM|Corrected|Exhaust"),
    Lift_Results("Text103"),

    Dimension("Text104", 0, "4.11"),
    Dimension("Text104", 1, "75"),
    Result("Text104", 2, "1.589"),
    Dimension("Text104", 3, "1.6"),
    Dimension("Text104", 4, "0.342"),
    Result("Text104", 5, "2.011"),
    Dimension("Text104", 6, "1.28"),
    Result("Text104", 7, "1.29"),
    Dimension("Text104", 8, "2.88"),
    Blanks("Text104", 9, 9).At(2, 9),
    Blanks("Text104", 10, 12),
    Heading("Text104", "Effective|Lift Inch|In."),
    Lift_Results("Text104"),

    Caption("Text105", 0, "In corner top").Tip(tips::corner_in_top),
    Caption("Text105", 1, "In corner bot").Tip(tips::corner_in_bottom),
    Captions("Text105", 2, 3, "In Width|Ex. Width"),
    Caption("Text105", 4, "Area Ratio").Tip(tips::area_ratio_in),
    Caption("Text105", 5, "Area Ratio").Tip(tips::area_ratio_ex),
    Caption("Text105", 6, "# Int Valves"),
    Blanks("Text105", 7, 10),
    Caption("Text105", 11, "Total CFM"),
    Blanks("Text105", 12, 12),
    Heading("Text105", "Effective|Lift Inch|Ex"),
    Lift_Results("Text105"),

    Corner("Text106", 0),
    Corner("Text106", 1),
    Dimension("Text106", 2, "1.215"),
    Dimension("Text106", 3, "1.37"),
    // A caption with the handlers of the cells above it; it stays locked all the same.
    Caption("Text106", 4, "Intake").Filter(Unsigned_Decimal).Check(Not_Blank).Selects(),
    Caption("Text106", 5, "Exhaust"),
    Input("Text106", 6, "1").Filter(Digits_Only).Check(Not_Blank, Intake_Count).Selects(),
    Captions("Text106", 7, 8, "Test|Correct"),
    Blanks("Text106", 9, 10),
    Result("Text106", 11, ""),
    Caption("Text106", 12, "CFM"),
    Heading("Text106", "Observed|Flow|Intake"),
    Lift_Inputs("Text106", "0|35.8|73|110|145|169|193.5|211.5|230|257.4|268|277|282|284|285"),

    Caption("Text107", 0, "Ex corner top").Tip(tips::corner_ex_top),
    Caption("Text107", 1, "Ex corner bot").Tip(tips::corner_ex_bottom),
    Captions("Text107", 2, 3, "In Height|Ex Height"),
    Result("Text107", 4, "0.812"),
    Result("Text107", 5, "0.896"),
    Captions("Text107", 6, 8, "# Exh Valves|Pressure|To:-------"),
    Blanks("Text107", 9, 10),
    Result("Text107", 11, ""),
    Caption("Text107", 12, "CFM"),
    Heading("Text107", "Observed|Flow|Exhaust"),
    Lift_Inputs("Text107", "0|24.6|52|77|109|136.6|147.7|161|179|187.9|188.6|198.6|207|215|222"),

    Corner("Text108", 0),
    Corner("Text108", 1),
    Dimension("Text108", 2, "2.17"),
    Dimension("Text108", 3, "1.34"),
    Blanks("Text108", 4, 5),
    Input("Text108", 6, "1").Filter(Digits_Only).Check(Not_Blank, Exhaust_Count).Selects(),
    Dimension("Text108", 7, "28"),
    Dimension("Text108", 8, "28").Check(Not_Blank),
    Blanks("Text108", 9, 12),
    Heading("Text108", "Actual|Valve|Lift Inch"),
    Results("Text108", zero_lift_row, last_lift_row, sample_lifts),

    Blanks("Text109", 0, 1),
    Caption("Text109", 2, "Area").Tip(tips::port_in),
    Caption("Text109", 3, "Area").Tip(tips::port_ex),
    Blanks("Text109", 4, 4),
    Captions("Text109", 5, 6, "CR|Max Lift"),
    Blanks("Text109", 7, 7),
    Caption("Text109", 8, "Correx"),
    Blanks("Text109", 9, 12),
    Heading("Text109", "CFM|Sq In|In."),
    Lift_Results("Text109"),

    Blanks("Text110", 0, 1),
    Result("Text110", 2, "2.602"),
    Result("Text110", 3, "1.801"),
    Blanks("Text110", 4, 4),
    Dimension("Text110", 5, "9.0"),
    Dimension("Text110", 6, "700"),
    Blanks("Text110", 7, 7),
    Result("Text110", 8, "1"),
    Blanks("Text110", 9, 12),
    Heading("Text110", "CFM|Sq In|Ex."),
    Lift_Results("Text110"),

    Blanks("Text111", 0, 1),
    Results("Text111", 2, 3, ""),
    Blanks("Text111", 4, 5),
    Captions("Text111", 6, 8, "Eng Bore|Ratio Throat|Ratio Valve"),
    Blanks("Text111", 9, 9),
    Captions("Text111", 10, 11, "Required|Existing"),
    Blanks("Text111", 12, 12),
    Heading("Text111", "SAE|CD|In"),
    Lift_Results("Text111"),

    Blanks("Text112", 0, 1),
    Results("Text112", 2, 3, ""),
    Blanks("Text112", 4, 5),
    Dimension("Text112", 6, "4.00"),
    Captions("Text112", 7, 8, "Valve Int|Bore Int"),
    Blanks("Text112", 9, 9),
    Captions("Text112", 10, 11, "In/Ex Rat|In/Ex Rat"),
    Blanks("Text112", 12, 12),
    Heading("Text112", "SAE|CD|Ex"),
    Lift_Results("Text112"),

    Blanks("Text113", 0, 6),
    Results("Text113", 7, 8, ""),
    Blanks("Text113", 9, 9),
    Results("Text113", 10, 12, ""),
    Heading("Text113", "In/Ex|Flow|Ratio"),
    Lift_Results("Text113"),

    Blanks("Text114", 0, 6),
    Captions("Text114", 7, 8, "Valve Exh|Bore Exh"),
    Blanks("Text114", 9, 11),
    Caption("Text114", 12, "fps"),
    Heading("Text114", "Mean|Port|Vel In."),
    Lift_Results("Text114"),

    Blanks("Text115", 0, 6),
    Results("Text115", 7, 8, ""),
    Blanks("Text115", 9, 11),
    Caption("Text115", 12, "fps"),
    Heading("Text115", "Mean|Port|Vel Ex."),
    Lift_Results("Text115"),

    Lone_Field("Text39", Cell_Use::Caption, "").At(0, 31, 15),

    // Page 2.
    Lone(Frame, "Frame1", "").Hidden().At(0, 0, 15, 32),
    Captions("Text201", 3, 5, "In. Valve|Seat Angle|Seat Width").In("Frame1"),
    Heading("Text201", "Effective|Valve|Area In.").In("Frame1"),
    Lift_Results("Text201").In("Frame1"),

    Blanks("Text202", 3, 3).In("Frame1"),
    Dimension("Text202", 4, "52").In("Frame1"),
    Dimension("Text202", 5, "0.045").In("Frame1"),
    Heading("Text202", "Effective|Valve|Area Ex.").In("Frame1"),
    Lift_Results("Text202").In("Frame1"),

    Captions("Text203", 3, 5, "Ex. Valve|Seat Angle|Seat Width").In("Frame1"),
    Heading("Text203", "Effective|Valve|Vel In.").In("Frame1"),
    Lift_Results("Text203").In("Frame1"),

    Blanks("Text204", 3, 3).In("Frame1"),
    Dimension("Text204", 4, "42").In("Frame1"),
    Dimension("Text204", 5, "0.065").In("Frame1"),
    Heading("Text204", "Effective|Valve|Vel Ex.").In("Frame1"),
    Lift_Results("Text204").In("Frame1"),

    Heading("text205", "Effective|SAE|CD In.").In("Frame1"),
    Lift_Results("text205").In("Frame1"),
    Heading("Text206", "Effective|SAE|CD Ex.").In("Frame1"),
    Lift_Results("Text206").In("Frame1"),

    Heading("Text207", "|Swirl|").In("Frame1"),
    Lift_Inputs("Text207",
                "0|1250|1600|1750|1525|1250|1325|1000|1000|1000|1050|1250|1400|1250|1100")
        .Filter(Signed_Decimal)
        .In("Frame1"),

    Heading("Text208", "L / D|Ratio|Intake").In("Frame1"),
    Lift_Results("Text208").In("Frame1"),
    Heading("Text209", "L / D|Ratio|Exhaust").In("Frame1"),
    Lift_Results("Text209").In("Frame1"),

    Heading("Text210", "Floating|Depression|Intake").In("Frame1"),
    Lift_Inputs("Text210", "0").In("Frame1"),
    Heading("Text211", "Floating|Depression|Exhaust").In("Frame1"),
    Lift_Inputs("Text211", "0").In("Frame1"),

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
    Menu("File", "subend", "Quit / Close").Keys("Ctrl+W"),
    Menu("File", "PrtSc", "&Print Screen to JPG / Image"),
    Menu("File", "Print_Sheet", "Print Flow Sheet for Customer").Keys("Ctrl+P"),
});

} // namespace

Flow_Sheet::Flow_Sheet(int number)
    : Screen(std::string("Form") + static_cast<char>('0' + number), sheet_table), number_(number) {}

} // namespace kestrum
