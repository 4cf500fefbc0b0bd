#include "screens/report_screen.h"

#include "screens/tips.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;

constexpr auto report_table = std::to_array<Control_Entry>({
    Lone(Frame, "Frame1", "Show  Information from Main Screen on Report"),
    Members(Check_Box, "Check3", 0, 0, "Yes").Set().In("Frame1"),
    Lone(Frame, "Frame2", "Show These Flow Test on Report"),
    Members(Check_Box, "Check1", 0, 4, "Test 1|Test 2|Test 3|Test 4|Test 5").Set().In("Frame2"),
    Lone(Frame, "Frame3", "Set Main Screen Data"),
    Members(Option_Button, "Option1", 0, 0, "Flush Left").Set().In("Frame3"),
    Members(Option_Button, "Option1", 1, 2, "Centered|Flush Right").In("Frame3"),
    Lone(Frame, "Frame4", "Set Text Data"),
    Members(Option_Button, "Option2", 0, 0, "Flush Left").Set().In("Frame4"),
    Members(Option_Button, "Option2", 1, 2, "Centered|Flush Right").In("Frame4"),
    Lone(Frame, "Frame5", "Show These Data Fields on the Report"),
    Members(Check_Box, "Check2", 0, 29,
            "Actual Valve Lift|Corrected Intake|Corrected Exhaust|Effective Lift In.|"
            "Effective Lift Ex.|Observed Flow Intake|Observed Flow Exhaust|CFM Sq In In.|"
            "CFM Sq In Ex.|SAE CD In.|SAE CD Ex.|In/Ex Flow Ratio|Mean Port Vel In.|"
            "Mean Port Vel Ex.|Show Comments|Port Energy In.|Port Energy Ex.|Port Density In.|"
            "Port Density Ex.|Effective Valve Area In.|Effective Valve Area Ex.|"
            "Effective Valve Vel In.|Effective Valve Vel Ex.|Swirl|Effective SAE CD In.|"
            "Effective SAE CD Ex.|L / R Ratio In.|L / R Ratio Ex.|Floating Depression In.|"
            "Floating Depression Ex.")
        .Set()
        .In("Frame5"),
    Push_Button("Command2", "&Create Text Report")
        .Tip("Create a Text Report using the Selected / Checked Option on this screen."),
    Push_Button("Load", "Load").Tip("Load a previous Saved Text Report Configuration File."),
    Push_Button("Save", "Save").Tip("Save this Text Report Configuration to a File."),
    Push_Button("Clear", "Clear &All").Tip("Clear All Checked Entries."),
    Push_Button("Select", "S&elect All").Tip("Select All UnChecked Entries."),
    Push_Button("Command5", "PrtSc as &JPG").Tip(tips::print_screen),
    Push_Button("subend", "&Quit").Tip("Quit / Close the Flow Test compare Screen"),
    Lone_Field("Text38", Cell_Use::Input, "").Many_Lines().Hidden(),
    Lone(Label, "Label7", "").Hidden(),
});

} // namespace

Report_Screen::Report_Screen() : Screen("Form70", report_table) {}

} // namespace kestrum
