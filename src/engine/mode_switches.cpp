#include "engine/mode_switches.h"

namespace kestrum {

namespace {

constexpr Colour no_marker = 0xFFFFFF;

/// A column of `Main` whose value cell is input or result by a box, and its marker.
struct Mode_Column {
    const Control_Array& cells;
    Control& marker;
};

void Mark(Control& marker, Colour colour) {
    Look look = marker.Present_Look();
    look.back_colour = colour;
    look.text_colour = colour;
    marker.Set_Look(look);
}

void Show_As_Input_Or_Result(const Engine_Screen& main, const Mode_Column& column, bool is_input) {
    constexpr int value_row = 3;
    for (int row = 1; row <= value_row; ++row) {
        Look look = column.cells(row).Present_Look();
        look.back_colour = is_input ? input_back : result_back;
        look.text_colour = is_input ? input_text : result_text;
        if (row == value_row) {
            const Control& model = is_input ? main.Text101(8) : main.Text102(6);
            look.locked = !is_input;
            look.tab_stop = is_input;
            look.font = model.Present_Look().font;
        }
        column.cells(row).Set_Look(look);
    }
    Mark(column.marker, is_input ? main.Label2(1).Present_Look().back_colour : no_marker);
}

} // namespace

void Apply_Mach_Mode(Session& session) {
    const Engine_Screen& main = session.Main();
    Show_As_Input_Or_Result(main, {main.Text101, main.Label2(0)}, main.Check1.Value() != 0);
}

void Apply_Rpm_Mode(Session& session) {
    const Engine_Screen& main = session.Main();
    const bool user_rpm = main.Check3.Value() != 0;
    Show_As_Input_Or_Result(main, {main.Text103, main.Label2(2)}, !user_rpm);
    Show_As_Input_Or_Result(main, {main.Text109, main.Label2(7)}, user_rpm);
}

} // namespace kestrum
