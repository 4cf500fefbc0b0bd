#include "screens/engine_screen.h"

#include "screens/tips.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;
using enum Key_Filter;
using enum Leave_Check;
using enum Leave_Step;
using enum Quantity;

constexpr int marker_colour = 0x00A020; // green

constexpr auto engine_table = std::to_array<Control_Entry>({
    // Value cells of row 3, with their captions above them.
    Blanks("Text101", 0, 0).Keeps_Tip(),
    Captions("Text101", 1, 2, "Enter|Mach #"),
    Result("Text101", 3, "0.5475").Filter(Unsigned_Decimal).Check(Not_Zero, Mach_Limit).Selects(),
    Blanks("Text101", 4, 5),
    Captions("Text101", 6, 7, "Enter CR|Here"),
    Input("Text101", 8, "10.5").Filter(Unsigned_Decimal).Check(Not_Zero, Ratio_Limit).Selects(),
    Caption("Text101", 9, "Port cc's").At(0, 14),

    Blanks("Text102", 0, 0),
    Captions("Text102", 1, 2, "Peak VE|Port Vel Ft/Sec"),
    Result("Text102", 3, "616").Of(Speed),
    Blanks("Text102", 4, 4),
    Captions("Text102", 5, 7, "Mean|Piston speed|Ft/Min"),
    Result("Text102", 8, "4691")
        .Of(Speed)
        .Tip("The \"Mean Port Speed\" is Calculated for 'Peak HP RPM'."),
    Input("Text102", 9, "203").At(1, 14).Filter(Unsigned_Decimal).Check(Not_Zero).Selects(),

    Blanks("Text103", 0, 0),
    Captions("Text103", 1, 2, "Mean|Port Area"),
    Input("Text103", 3, "2.75")
        .Of(Area)
        .Filter(Unsigned_Decimal)
        .Check(Not_Zero)
        .Selects()
        .Tip("The \"Mean Port Area\" should be obtained from the Flow Test screen where it is "
             "Calculated from your input."),
    Blanks("Text103", 4, 4),
    Captions("Text103", 5, 7, "CFM @|Peak|Lift"),
    Input("Text103", 8, "322").Of(Flow).Filter(Unsigned_Decimal).Check(Not_Zero).Selects(),
    Caption("Text103", 9, "Port Length").At(2, 14),

    Blanks("Text104", 0, 0),
    Captions("Text104", 1, 2, "Bore|Inches"),
    Input("Text104", 3, "4.125").Of(Length).Filter(Unsigned_Decimal).Check(Not_Zero).Selects(),
    Blanks("Text104", 4, 4),
    Captions("Text104", 5, 7, "Best|Torque|Output"),
    Result("Text104", 8, "581").Of(Torque),
    Input("Text104", 9, "5.1")
        .Of(Length)
        .At(3, 14)
        .Filter(Unsigned_Decimal)
        .Check(Not_Zero)
        .Selects(),

    Blanks("Text105", 0, 0),
    Captions("Text105", 1, 2, "Stroke|Inches"),
    Input("Text105", 3, "4").Of(Length).Filter(Unsigned_Decimal).Check(Not_Zero).Selects(),
    Blanks("Text105", 4, 4),
    Captions("Text105", 5, 7, "Cyl. Head|Port Area|HP limitation"),
    Result("Text105", 8, "685").Of(Power),
    Caption("Text105", 9, "Port Area").At(4, 14),

    Blanks("Text106", 0, 0),
    Captions("Text106", 1, 2, "Piston|Area"),
    Result("Text106", 3, "13.36").Of(Area),
    Blanks("Text106", 4, 4),
    Captions("Text106", 5, 7, "Cyl. Head|Airflow|HP limitation"),
    Result("Text106", 8, "740").Of(Power),
    Input("Text106", 9, "2.43")
        .Of(Area)
        .At(5, 14)
        .Filter(Unsigned_Decimal)
        .Check(Not_Zero)
        .Selects(),

    Blanks("Text107", 0, 0),
    Captions("Text107", 1, 2, "Engine|CID"),
    Result("Text107", 3, "427.7").Of(Displacement),
    Blanks("Text107", 4, 4),
    Captions("Text107", 5, 7, "Torque|per|Cubic Inch"),
    Result("Text107", 8, "1.359").Of(Torque),

    Blanks("Text108", 0, 0),
    Captions("Text108", 1, 2, "Cylinder|CID"),
    Result("Text108", 3, "53.46").Of(Displacement),
    Blanks("Text108", 4, 4),
    Captions("Text108", 5, 7, "Torque|per|Liter"),
    Result("Text108", 8, "82.9").Of(Torque),

    Blanks("Text109", 0, 0),
    Captions("Text109", 1, 2, "Peak HP|RPM"),
    Result("Text109", 3, "7037").Filter(Digits_Only).Check(Not_Zero).Selects(),
    Blanks("Text109", 4, 4),
    Captions("Text109", 5, 7, "HP|per|Cube"),
    Result("Text109", 8, "1.6").Of(Power),

    Blanks("Text110", 0, 0),
    Captions("Text110", 1, 2, "Shift|RPM"),
    Result("Text110", 3, "7530"),
    Blanks("Text110", 4, 4),
    Captions("Text110", 5, 7, "HP|per|Liter"),
    Result("Text110", 8, "97.6").Of(Power),

    Captions("Text111", 0, 2, "Number|of|Cylinder"),
    Input("Text111", 3, "8").Filter(Digits_Only).Check(Not_Zero).Selects(),
    Blanks("Text111", 4, 8),

    Lone_Field("Text33", Cell_Use::Input, "Name of Test being Calculated").At(0, 17, 6),
    Lone_Field("Text38", Cell_Use::Input, "C O M M E N T S").Many_Lines().At(0, 18, 6, 5),

    // Modes.
    Lone(Check_Box, "Check1", "User")
        .At(0, 0)
        .Tip("If this box is Checked then the User Entered Mach # is used. If this box is not the "
             "program will calculate the Mach#."),
    Lone(Check_Box, "Check2", "Metric")
        .At(9, 9, 2)
        .Tip("Checking This box will convert all data to Metric and all Calculations on all Forms "
             "will be in Metric. UnChecking this box will cause all data to converted to US units "
             "and all Calculation will be in US Units."),
    Lone(Check_Box, "Check3", "User")
        .At(8, 0)
        .Tip("If this box is Checked then the User cam Enter 'Peak HP RPM' and the Program will "
             "use it to Calculate 'Mean Port Area'. If this box is not Checked the program will "
             "calculate the 'Peak HP RPM' from User Entered 'Mean Port Area'."),

    // Buttons.
    Push_Button("Command51", "Calculate").At(9, 10, 2, 2).Tip("Lets you Calculate the above Data."),
    Push_Button("Command1", "Flow Test 1").At(6, 14),
    Push_Button("Command2", "Flow Test 2").At(7, 14),
    Push_Button("Command3", "Flow Test 3").At(8, 14),
    Push_Button("Command4", "Flow Test 4").At(9, 14),
    Push_Button("Command5", "Flow Test 5").At(10, 14),
    Push_Button("Command50", "Compare 2 Flow Tests")
        .At(6, 15, 3)
        .Tip("Lets you Select and Compare any 2 of the Flow Tests."),
    Push_Button("Command33", "Text Report")
        .At(9, 15, 2)
        .Tip("Lets you Select which Flow Tests and  what items from these Flow Tests to show on a "
             "Text Report."),
    Push_Button("Command7", "Calculate cc's")
        .At(0, 15, 2)
        .Tip("Calculate Port cc's / Volume from it's Port's Average CSA and Port CenterLine "
             "Length."),
    Push_Button("Command8", "Calculate Length")
        .At(2, 15, 2)
        .Tip("Calculate Port CenterLine Length from it's Port's Average CSA and Volume."),
    Push_Button("Command9", "Calculate Area")
        .At(4, 15, 2)
        .Tip("Calculate Port's Average CSA from it's Volume and Port CenterLine Length."),
    Push_Button("Command6", "PrtSc as &JPG").At(6, 19, 2).Tip(tips::print_screen),
    Push_Button("Command49", "Play \"WAV\" Sound File")
        .At(8, 19, 3)
        .Tip("Select and Play a \"WAV\" sound file."),
    Push_Button("Command10", "Volmark Cams").At(0, 12, 2),

    // Markers and notes.
    Members(Label, "Label1", 0, 0,
            "This does assume you will install the appropriate cam. For details on the \"Volmark\" "
            "Cam program Click Below.")
        .At(0, 9, 3, 3),
    Members(Label, "Label1", 1, 1,
            "This is the port area limited power as set by the limiting port speed stated as the "
            "Mach Number where 1.0 is the speed of sound in air at 70 F.")
        .At(3, 9, 2, 4),
    Members(Label, "Label1", 2, 2,
            "This is the HP capability of the engine assuming a Brake Specific Air Consumption of "
            "5.5 lbs/hour/HP. This is corrected for the CR Used.\r\nFor best results this number "
            "should be about 5% more than the port area/speed limitation in the adjacent column to "
            "the left.")
        .At(5, 9, 4, 4),
    Members(Label, "Label2", 0, 0, "").Coloured(0xFFFFFF).At(0, 3),
    Members(Label, "Label2", 1, 1, "").Coloured(marker_colour).At(6, 21),
    Members(Label, "Label2", 2, 2, "").Coloured(marker_colour).At(2, 3),
    Members(Label, "Label2", 7, 7, "").Coloured(0xFFFFFF).At(8, 3),
    Members(Label, "Label2", 9, 9, "= Input Field").At(7, 21, 4),
    Members(Label, "Label2", 13, 13,
            "= Placing the Mouse on this field will show additional Information")
        .At(7, 22, 4),
    Lone(Label, "Label7", "").Hidden(),

    // Placing of the company data on a printed sheet.
    Members(Option_Button, "Option4", 0, 0, "Left")
        .At(8, 17)
        .Set()
        .Tip("When Printing a Flow Sheet this Prints Your Company Information Flush Left and Your "
             "Company Logo Flush Right."),
    Members(Option_Button, "Option4", 1, 1, "Center")
        .At(9, 17)
        .Tip("When Printing a Flow Sheet this Prints Your Company Information Centered and Your "
             "Company Logo at the bottom of the page. This lets you use a Larger Logo. Before "
             "Version 4.0.0 this was the default / only setting."),
    Members(Option_Button, "Option4", 2, 2, "Right")
        .At(10, 17)
        .Tip("When Printing a Flow Sheet this Prints Your Company Information Flush Right and Your "
             "Company Logo Flush Left."),

    // Panel of the preload files.
    Lone(Frame, "Frame4", "Flow Test Preload Files").Hidden().At(2, 4, 7, 9),
    Inputs("Text1", 0, 4, "No").In("Frame4").At(1, 0, 4),
    Members(Button, "Command45", 0, 4, "Get File Name")
        .In("Frame4")
        .At(5, 0, 2)
        .Tip("Opens Window and lets USER Select Flow Data File Name."),
    Push_Button("Command46", "&Load / Done")
        .In("Frame4")
        .At(3, 6, 2)
        .Tip("When done Selecting Flow Data File Names, Clicking this will Load These Files before "
             "Closing This Window."),
    Push_Button("Command44", "&Done")
        .In("Frame4")
        .At(5, 6, 2)
        .Tip("When done Selecting Flow Data File Names, Clicking this will Close This Window."),

    // Panel of the company data.
    Lone(Frame, "Frame96", "Company Name, Address, etc").Hidden().At(2, 4, 7, 9),
    Lone_Field("Text94", Cell_Use::Input, "").In("Frame96").At(2, 0, 5),
    Lone_Field("Text95", Cell_Use::Input, "").In("Frame96").At(2, 1, 5),
    Lone_Field("Text96", Cell_Use::Input, "").In("Frame96").At(2, 2, 5),
    Lone_Field("Text97", Cell_Use::Input, "").In("Frame96").At(2, 3, 5),
    Lone_Field("Text98", Cell_Use::Input, "").In("Frame96").At(2, 4, 5),
    Push_Button("Save_Co_Name", "Save").In("Frame96").At(3, 6, 2),
    Push_Button("Command95", "Exit").In("Frame96").At(5, 6, 2),

    // Panel of the printers.
    Lone(Frame, "Frame99", "Select Which Printer to Use").Hidden().At(3, 5, 5, 5),
    Lone(Combo_Box, "Combo1", "").In("Frame99").At(0, 0, 5),
    Push_Button("Got_Printer", "&O K").In("Frame99").At(3, 2, 2),

    Menu("", "File", "&File"),
    Menu("File", "Load_Data", "&Load Data").Keys("Ctrl+O").Tip(tips::load),
    Menu("File", "Save_Data", "&Save Data").Keys("Ctrl+S").Tip(tips::save),
    Menu("File", "Preload", "Setup Flow Data File Preloads"),
    Menu("File", "MouseP", "Set Mouse Pointer to Standard Arrow"),
    Menu("File", "User_GUI", "&User GUI"),
    Menu("User_GUI", "AllFont", "Select Font for All Text Main Screen"),
    Menu("User_GUI", "EntryFont", "Select Font for Just Entry Text Main Screen"),
    Menu("User_GUI", "AllFont_Flow", "Select Font for All Text Flow Screen"),
    Menu("User_GUI", "EntryFont_Flow", "Select Font for Just Entry Text Flow Screen"),
    Menu("User_GUI", "AligLeft", "Set Alignment for Flush Left"),
    Menu("User_GUI", "AligCenter", "Set Alignment for Center"),
    Menu("User_GUI", "AligRight", "Set Alignment for Flush Right"),
    Menu("User_GUI", "Read_GUI", "Read (Open) GUI File"),
    Menu("User_GUI", "Write_GUI", "Write (Save) GUI File"),
    Menu("File", "Exit", "E&xit").Keys("Ctrl+Q"),
    Menu("", "View", "&View"),
    Menu("View", "AspectRatio", "Can Use Nonstandard Aspect Ratio for Graph"),
    Menu("View", "FullScrRes", "Use Full Screen Resolution"),
    Menu("View", "ScrRes", "Sh&ow Screen Resolution"),
    Menu("", "Graph_Options", "&Graph Options"),
    Menu("Graph_Options", "FontColor", "Select Font Color for Use on Graphs"),
    Menu("Graph_Options", "Grid_Color", "Select Grid Line Color for Use on Graphs"),
    Menu("Graph_Options", "Grid_Long", "Set Grid Lines as Long"),
    Menu("Graph_Options", "Grid_Dash", "Set Grid Lines as Dash"),
    Menu("Graph_Options", "Grid_Dot", "Set Grid Lines as Dot"),
    Menu("Graph_Options", "Grid_None", "Set NO Grid Lines"),
    Menu("", "Company_Info", "&Company Info"),
    Menu("Company_Info", "Co_Name", "Enter Your Company Name, Address, etc"),
    Menu("Company_Info", "Load_Co_Name", "Load Company Name, Address, etc, Data"),
    Menu("", "Print", "&Print"),
    Menu("Print", "Load_Printer_Info", "Select Which Printer to Use"),
    Menu("", "Help", "&Help"),
    Menu("Help", "Report_Problem", "EMAIL - Customer Support - Report Problem"),
    Menu("Help", "Information_Request", "EMAIL - Customer Support - Information Request"),
    Menu("Help", "About", "&About"),
});

} // namespace

Engine_Screen::Engine_Screen() : Screen({Screen_Kind::Engine}, engine_table) {}

} // namespace kestrum
