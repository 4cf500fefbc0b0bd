#include "screens/compare_screen.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;
using enum Key_Filter;

/// Below the row of the labels.
constexpr Control_Entry Table_Head(std::string_view array) {
    return Captions(array, 11, 15, "");
}

/// Label of a test over its card, since a name is long.
constexpr Control_Entry Test_Label(std::string_view array, int column, int columns = 3) {
    constexpr int row = 10;
    return Caption(array, row, "").At(column, row, columns);
}

constexpr Control_Entry Table_Rows(std::string_view array) {
    return Results(array, 16, 30, "");
}

constexpr Control_Entry Type(int index, std::string_view caption) {
    // The % types stand beside the plain ones.
    constexpr int rows = 9;
    return Members(Option_Button, "Option3", index, index, caption)
        .In("Frame3")
        .At(index / rows, index % rows);
}

constexpr Control_Entry Axis_Limit(std::string_view name, int row, std::string_view tip,
                                   Leave_Step step = Leave_Step::Dash_When_Empty) {
    return Lone_Field(name, Cell_Use::Input, "-")
        .Filter(Signed_Decimal)
        .Check(Leave_Check::No_Check, step)
        .Selects()
        .Tip(tip)
        .At(12, row);
}

constexpr std::string_view marker_tip =
    "If This Field has anything other than a \"-\" that Value will be Used to Draw a Horizontal "
    "line on the Graph @ that Valve Lift Point.";

// The long help texts of the % types differ in what changes alone.
#define KESTRUM_PERCENT_TIP(what)                                                                  \
    "This will show the \"% Change in " what                                                       \
    "\" from a lift point in the FROM Test to a lift point in the TO Test.\r\n\r\nNOTE: This "     \
    "will not work if both the FROM and TO tests are the same."

constexpr auto compare_table = std::to_array<Control_Entry>({
    Blanks("Text101", 10, 10),
    Table_Head("Text101"),
    Table_Rows("Text101"),
    Test_Label("Text102", 0),
    Table_Head("Text102"),
    Table_Rows("Text102"),
    Blanks("Text103", 10, 10),
    Table_Head("Text103"),
    Table_Rows("Text103"),
    Test_Label("Text104", 3),
    Table_Head("Text104"),
    Table_Rows("Text104"),
    Blanks("Text105", 10, 10),
    Table_Head("Text105"),
    Table_Rows("Text105"),
    Blanks("Text106", 10, 10),
    Table_Head("Text106"),
    Table_Rows("Text106"),
    Test_Label("Text107", 6, 2),
    Table_Head("Text107"),
    Table_Rows("Text107"),
    Blanks("Text108", 10, 10),
    Table_Head("Text108"),
    Table_Rows("Text108"),
    Test_Label("Text109", 8, 2),
    Table_Head("Text109"),
    Table_Rows("Text109"),
    Blanks("Text110", 10, 10),
    Table_Head("Text110"),
    Table_Rows("Text110"),

    Lone(Frame, "Frame1", "Compare Flow").At(0, 0, 2, 6),
    Members(Option_Button, "Option1", 0, 0, "Test 1").Set().In("Frame1").At(0, 0),
    Members(Option_Button, "Option1", 1, 4, "Test 2|Test 3|Test 4|Test 5").In("Frame1").At(0, 1),
    Lone(Frame, "Frame2", "To Flow").At(2, 0, 2, 6),
    Members(Option_Button, "Option2", 0, 0, "Test 1").In("Frame2").At(0, 0),
    Members(Option_Button, "Option2", 1, 1, "Test 2").Set().In("Frame2").At(0, 1),
    Members(Option_Button, "Option2", 2, 4, "Test 3|Test 4|Test 5").In("Frame2").At(0, 2),

    Lone(Frame, "Frame3", "Type of Comparison / Graph").At(4, 0, 6, 10),
    Type(0, "CFM @ 28\"").Set().Tip("CFM Air Flow @ 28 Inches of Water."),
    Type(1, "CFM Per Sq/Inch").Tip("Flow per Square Inch / mm of Valve Area."),
    Type(2, "Mean Port Velocity"),
    Type(3, "Port Energy"),
    Type(4, "Port Energy Density"),
    Type(5, "Effective Velocity")
        .Tip("This will show the \"Effective Velocity\" which will use the User supplied valve "
             "seat angle and width as part of this calculation."),
    Type(6, "Swirl"),
    Type(7, "SAE CD")
        .Tip("This will produce the same curve as the CFM per SQ Inch / mm. Only it is unitless "
             "and will look the same in Standard mode as it will in Metric."),
    Type(8, "Effective SAE CD")
        .Tip("This will show the \"Effective SAE CD\" using the User supplied valve seat angle and "
             "width as part of this calculation."),
    Type(9, "% Flow").Tip(KESTRUM_PERCENT_TIP("Flow")),
    Type(10, "% CFM Per Sq/Inch").Tip(KESTRUM_PERCENT_TIP("CFM Per Sq/Inch")),
    Type(11, "% SAE CD").Tip(KESTRUM_PERCENT_TIP("SAE CD")),
    Type(12, "% Mean Port Velocity").Tip(KESTRUM_PERCENT_TIP("Mean Port Velocity")),
    Type(13, "% Effective SAE CD").Tip(KESTRUM_PERCENT_TIP("Effective SAE CD")),
    Type(14, "% Effective Velocity").Tip(KESTRUM_PERCENT_TIP("Effective Velocity")),
    Type(15, "% Swirl").Tip(KESTRUM_PERCENT_TIP("Swirl")),
    Type(16, "% Port Engery").Tip(KESTRUM_PERCENT_TIP("Port Energy")),
    Type(17, "% Port Engery Density").Tip(KESTRUM_PERCENT_TIP("Port Energy Density")),

    Lone(Frame, "Frame4", "Valve Lift or L/D Ratio").At(0, 6, 4, 4),
    Members(Option_Button, "Option4", 0, 0, "Valve Lift")
        .Set()
        .In("Frame4")
        .At(0, 0)
        .Tip("Graph Intake and Exhaust Using Valve Lift as the X_Axis."),
    Members(Option_Button, "Option4", 1, 1, "Intake L/D Ratio")
        .In("Frame4")
        .At(0, 1)
        .Tip("Graph Intake Using Intake L/D Ratio as the X_Axis."),
    Members(Option_Button, "Option4", 2, 2, "Exhaust L/D Ratio")
        .In("Frame4")
        .At(0, 2)
        .Tip("Graph Exhaust Using Exhaust L/D Ratio as the X_Axis."),

    Lone(Label, "Label1", "Y Axis Low").At(10, 12, 2),
    Axis_Limit("Text1", 12,
               "If This Field has anything other than a \"-\" that Value will be Used for "
               "the Y_Axis Low Value for all % Change Graphs."),
    Lone(Label, "Label2", "Y Axis High").At(10, 13, 2),
    Axis_Limit("Text2", 13,
               "If This Field has anything other than a \"-\" that Value will be Used for "
               "the Y_Axis High Value for all Graphs.",
               // This one looks at the low limit; a slip that is wanted.
               Leave_Step::Dash_When_Low_Is_Empty),
    Lone(Label, "Label3", "Valve Lift 1").At(10, 14, 2),
    Axis_Limit("Text3", 14, marker_tip),
    Lone(Label, "Label4", "Valve Lift 2").At(10, 15, 2),
    Axis_Limit("Text4", 15, marker_tip),
    Lone_Field("Text71", Cell_Use::Input, "User Supplied Text for Graph Caption Line 1 -- ADD HERE")
        .At(10, 17, 4),
    Lone_Field("Text72", Cell_Use::Input, "User Supplied Text for Graph Caption Line 2 -- ADD HERE")
        .At(10, 18, 4),

    Lone(Check_Box, "Check1", "Show a Line on the Graph @ .25 Valve Diameter")
        .At(10, 7, 4)
        .Tip("When Checked a Line will be drawn @ .25 Valve Diameter for both the Intake and "
             "Exhasut for both Flow Tests."),
    Lone(Check_Box, "Check2", "Calculate the Number of Lines on the X-Axis")
        .At(10, 8, 4)
        .Tip("The Program Default is to have 10 Horizontal Lines on the X-Axis. When Checked this "
             "will cause the Program Calculate how many Horizontal Lines to use on the X-Axis. "
             "Depending on Max lift this could be every 0.025\", every 0.050\" or every 0.100\"."
             "\r\nNotes: This also working in Metric mode.\r\nThis only work for Valve Lift and "
             "not for L/D Ratio Graphs."),
    Lone(Check_Box, "Check3", "Show Data Points on Graph.")
        .At(10, 9, 4)
        .Tip("When Checked this will cause the Program to Mark Each Data Point on the Graph."),
    Lone(Check_Box, "Check4", "Show Big")
        .At(10, 10, 4)
        .Tip("When Checked this will cause the Program to Calculate the Low Y_Axis on the Graph "
             "instead of Using Zero for Effective Velocity, and Swirl."),

    Push_Button("Command1", "&Calculate")
        .At(10, 0, 2, 2)
        .Tip("Populate Cells from the Indicated \"From\" and \"To\" Flow Tests and User indicated "
             "\"Type\" of Comparison."),
    Push_Button("Command2", "&Graph")
        .At(12, 0, 2, 2)
        .Tip("Populate Cells from the Indicated \"From\" and \"To\" Flow Tests and User indicated "
             "\"Type\" and then Graph them."),
    Push_Button("Graph_Plus", "Graph &Plus")
        .At(10, 2, 2, 2)
        .Tip("Populate Cells from the Indicated \"From\" and \"To\" Flow Tests and User indicated "
             "\"Type\" and then Graph them on the PRESENT GRAPH.\r\n\r\nNOTE: This can be used a "
             "MAX of 3 times on any Graph."),
    Push_Button("Command3", "Print Calcs").At(12, 2, 2, 2).Tip("Print Report Showing Calculations"),
    Push_Button("Command5", "PrtSc as &JPG").At(10, 4, 2, 2),
    Push_Button("subend", "&Quit").At(12, 4, 2, 2).Tip("Quit / Close the Flow Test compare Screen"),
});

#undef KESTRUM_PERCENT_TIP

} // namespace

Compare_Screen::Compare_Screen() : Screen({Screen_Kind::Compare}, compare_table) {}

int Compare_Screen::Chosen(const Control_Array& options) {
    int index = 0;
    while (index < options.Size() - 1 && options(index).Value() == 0) {
        ++index;
    }
    return index;
}

} // namespace kestrum
