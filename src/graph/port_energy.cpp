#include "graph/port_energy.h"

#include "base/units.h"
#include "graph/energy_formula.h"

namespace kestrum {

namespace {

struct Energy_Cell {
    const Control& gate;
    const Control& velocity;
    Control& target;
};

void Fill(Session& session, const Energy_Cell& cell, const Port& port, Energy_Formula formula) {
    // The text "0" alone is spared: "0.0" goes through and gives a zero.
    if (cell.gate.Text() == "0") {
        return;
    }
    cell.target.Set_Text(session.numbers.Fmt_Four_Place(formula(session, port, cell.velocity)));
}

} // namespace

void Port_Energy(Session& session, const Test_Columns& test, const Flow_Sheet& sheet, int row) {
    test.derived_intake(row).Set_Text("");
    test.derived_exhaust(row).Set_Text("");
    if (row >= zero_lift_row) {
        Fill(session, {test.energy_gate_intake(row), test.intake(row), test.derived_intake(row)},
             Port_Of(sheet, Side::Intake), Energy_Of_Air);
        Fill(session, {test.energy_gate_exhaust(row), test.exhaust(row), test.derived_exhaust(row)},
             Port_Of(sheet, Side::Exhaust), Energy_Of_Air);
    }
}

void Port_Energy_Density(Session& session, const Test_Columns& test, const Flow_Sheet& sheet,
                         int row) {
    test.derived_intake(row).Set_Text("");
    test.derived_exhaust(row).Set_Text("");
    if (row >= zero_lift_row) {
        // These look at their own columns on both sides.
        Fill(session, {test.intake(row), test.intake(row), test.derived_intake(row)},
             Port_Of(sheet, Side::Intake), Energy_Density_Of_Air);
        Fill(session, {test.exhaust(row), test.exhaust(row), test.derived_exhaust(row)},
             Port_Of(sheet, Side::Exhaust), Energy_Density_Of_Air);
    }
}

} // namespace kestrum
