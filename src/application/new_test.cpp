#include "application/new_test.h"

namespace kestrum {

namespace {

bool Is_Measured(const Control_Entry& entry) {
    return entry.role == Cell_Role::Observed_Flow || entry.role == Cell_Role::Depression ||
           entry.array == "Text207"; // swirl
}

bool Is_Lift(const Control_Entry& entry) {
    return entry.step == Leave_Step::Copy_Lift;
}

} // namespace

std::vector<Control*> Begin_New_Test(Flow_Sheet& sheet, New_Test kind) {
    std::vector<Control*> zeroed;
    sheet.Text39.Set_Text(""); // the file is the old test's, and a save would propose its name
    for (Control& control : sheet.Controls()) {
        const Control_Entry& entry = control.Entry();
        const bool is_input =
            entry.use == Cell_Use::Input || (control.Is_Text_Box() && entry.many_lines);
        if (!is_input || Is_Lift(entry) ||
            (kind == New_Test::From_This_Head && !Is_Measured(entry))) {
            continue;
        }
        if (entry.filter == Key_Filter::Every_Key) {
            control.Set_Text("");
        } else {
            control.Set_Text("0");
            zeroed.push_back(&control);
        }
    }
    return zeroed;
}

} // namespace kestrum
