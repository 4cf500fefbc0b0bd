#include "screens/report_screen.h"

#include "screens/tips.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;

/// Ten of the boxes that choose the fields of the report, in a column of their own.
constexpr Control_Entry Fields(int first, std::string_view captions) {
    constexpr int count = 10;
    return Members(Check_Box, "Check2", first, first + count - 1, captions)
        .Set()
        .In("Frame5")
        .At(first / count, 0);
}

/// A hint stands until the mouse is over another button or over the bare form.
template <std::size_t count>
constexpr std::array<Control_Entry, count>
With_Lasting_Hints(std::array<Control_Entry, count> table) {
    for (Control_Entry& entry : table) {
        if (entry.hover == Hover::Hides) {
            entry = entry.Keeps_Tip();
        }
    }
    return table;
}

constexpr auto report_table = With_Lasting_Hints(std::to_array<Control_Entry>({
    Lone(Frame, "Frame1", "Show  Information from Main Screen on Report").At(0, 0, 4, 3),
    Members(Check_Box, "Check3", 0, 0, "Yes").Set().In("Frame1").At(0, 0),
    Lone(Frame, "Frame2", "Show These Flow Test on Report").At(0, 3, 4, 6),
    Members(Check_Box, "Check1", 0, 4, "Test 1|Test 2|Test 3|Test 4|Test 5")
        .Set()
        .In("Frame2")
        .At(0, 0),
    Lone(Frame, "Frame3", "Set Main Screen Data").At(0, 9, 4, 4),
    Members(Option_Button, "Option1", 0, 0, "Flush Left").Set().In("Frame3").At(0, 0),
    Members(Option_Button, "Option1", 1, 2, "Centered|Flush Right").In("Frame3").At(0, 1),
    Lone(Frame, "Frame4", "Set Text Data").At(0, 13, 4, 4),
    Members(Option_Button, "Option2", 0, 0, "Flush Left").Set().In("Frame4").At(0, 0),
    Members(Option_Button, "Option2", 1, 2, "Centered|Flush Right").In("Frame4").At(0, 1),
    Lone(Frame, "Frame5", "Show These Data Fields on the Report").At(4, 0, 8, 13),
    Fields(0, "Actual Valve Lift|Corrected Intake|Corrected Exhaust|Effective Lift In.|"
              "Effective Lift Ex.|Observed Flow Intake|Observed Flow Exhaust|CFM Sq In In.|"
              "CFM Sq In Ex.|SAE CD In."),
    Fields(10, "SAE CD Ex.|In/Ex Flow Ratio|Mean Port Vel In.|Mean Port Vel Ex.|Show Comments|"
               "Port Energy In.|Port Energy Ex.|Port Density In.|Port Density Ex.|"
               "Effective Valve Area In."),
    Fields(20, "Effective Valve Area Ex.|Effective Valve Vel In.|Effective Valve Vel Ex.|Swirl|"
               "Effective SAE CD In.|Effective SAE CD Ex.|L / R Ratio In.|L / R Ratio Ex.|"
               "Floating Depression In.|Floating Depression Ex."),
    Push_Button("Command2", "&Create Text Report")
        .At(4, 13, 4, 2)
        .Tip("Create a Text Report using the Selected / Checked Option on this screen."),
    Push_Button("Load", "Load")
        .At(8, 13, 2, 2)
        .Tip("Load a previous Saved Text Report Configuration File."),
    Push_Button("Save", "Save")
        .At(10, 13, 2, 2)
        .Tip("Save this Text Report Configuration to a File."),
    Push_Button("Clear", "Clear &All").At(4, 15, 2, 2).Tip("Clear All Checked Entries."),
    Push_Button("Select", "S&elect All").At(6, 15, 2, 2).Tip("Select All UnChecked Entries."),
    Push_Button("Command5", "PrtSc as &JPG").At(8, 15, 2, 2).Tip(tips::print_screen),
    Push_Button("subend", "&Quit")
        .At(10, 15, 2, 2)
        .Tip("Quit / Close the Flow Test compare Screen"),
    Lone_Field("Text38", Cell_Use::None, "").Many_Lines().Hidden().At(0, 0, 12, 17),
    Lone(Label, "Label7", "").Hidden(),
}));

} // namespace

Report_Screen::Report_Screen() : Screen({Screen_Kind::Report}, report_table) {
    Look look = Text38.Present_Look();
    look.font.name = "Courier New"; // the report lines up in letters of one width
    Text38.Set_Look(look);
}

} // namespace kestrum
