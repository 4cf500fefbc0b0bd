#include "engine/port_calculators.h"

#include "base/units.h"

namespace kestrum {

namespace {

/// Not the sheet's rounder figure: the calculators keep their own.
constexpr double cc_in_cubic_inch = 16.387064;

/// Writes one of the three by its formula in the units of the moment.
template <typename Formula>
void Calculate(Session& session, Control& target, Format format, Formula formula) {
    const Units units = session.Main().Is_Metric() ? Metric_Units() : Us_Units();
    try {
        target.Set_Text((session.numbers.*format)(formula(units)));
    } catch (const Run_Time_Error&) {
        // Errors are ignored here: the statement that writes the target is skipped.
        return;
    }
}

} // namespace

void Calc_Port_Volume(Session& session) {
    const Engine_Screen& main = session.Main();
    const Numeric_Text& numbers = session.numbers;
    Calculate(session, main.Text102(9), &Numeric_Text::Fmt_Two_Place, [&](const Units& units) {
        return numbers(main.Text106(9)) / units.square_inch * cc_in_cubic_inch *
               (numbers(main.Text104(9)) / units.inch);
    });
}

void Calc_Port_Length(Session& session) {
    const Engine_Screen& main = session.Main();
    const Numeric_Text& numbers = session.numbers;
    Calculate(session, main.Text104(9), &Numeric_Text::Fmt_Three_Place, [&](const Units& units) {
        return numbers(main.Text102(9)) / (numbers(main.Text106(9)) / units.square_inch) /
               cc_in_cubic_inch * units.inch;
    });
}

void Calc_Port_Area(Session& session) {
    const Engine_Screen& main = session.Main();
    const Numeric_Text& numbers = session.numbers;
    Calculate(session, main.Text106(9), &Numeric_Text::Fmt_Three_Place, [&](const Units& units) {
        return numbers(main.Text102(9)) /
               (numbers(main.Text104(9)) / units.inch * cc_in_cubic_inch) * units.square_inch;
    });
}

} // namespace kestrum
