#include "core/decimal_switch.h"

namespace kestrum {

namespace {

void Exchange_First(Screen& screen, char from, char to) {
    for (Control& control : screen.Controls()) {
        if (!control.Is_Text_Box()) {
            continue;
        }
        const std::size_t found = control.Text().find(from);
        if (found != std::string::npos) {
            std::string text = control.Text();
            text[found] = to;
            control.Set_Text(text);
        }
    }
}

} // namespace

void All_Dots_To_Commas(Screen& screen) {
    Exchange_First(screen, '.', ',');
}

void All_Commas_To_Dots(Screen& screen) {
    Exchange_First(screen, ',', '.');
}

void Apply_Decimal_Mode(const Numeric_Text& numbers, Screen& screen) {
    Exchange_First(screen, numbers.comma_mode != 0 ? '.' : ',', numbers.Point());
}

} // namespace kestrum
