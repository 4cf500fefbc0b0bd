#include "graph/port_energy.h"

#include "core/units.h"

namespace kestrum {

namespace {

/// Joules in a foot-pound; not the rounder figure of the engine screen.
constexpr double joules = 1.35581795;

/// The dimensions of one side's port on the sheet.
struct Port {
    const Control& volume; // cc in both unit systems
    const Control& area;
    const Control& length;
};

Port Intake_Port(const Flow_Sheet& sheet) {
    return {sheet.Text102(1), sheet.Text102(2), sheet.Text102(8)};
}

Port Exhaust_Port(const Flow_Sheet& sheet) {
    return {sheet.Text104(1), sheet.Text104(2), sheet.Text104(8)};
}

struct Energy_Units {
    Units factors;
    Real energy;
};

Energy_Units Units_Of(Session& session) {
    return session.Main().Is_Metric() ? Energy_Units{Metric_Units(), joules}
                                      : Energy_Units{Us_Units(), 1};
}

/// Half the mass of the air in the port, times the square of its velocity; foot-pounds.
Real Energy(const Numeric_Text& number, const Port& port, const Control& velocity,
            const Units& units) {
    const Real mass = number(port.volume) / factor::cubic_centimetre_inch / 1728 / 2 * 0.076;
    return mass * Squared(number(velocity) / units.foot);
}

Real Density(const Numeric_Text& number, const Port& port, const Control& velocity,
             const Units& units) {
    // In steps, so that of two failures the first one counts.
    const Real energy = Energy(number, port, velocity, units);
    const Real per_area = energy / (number(port.area) / units.square_inch);
    return per_area * (12 / (number(port.length) / units.inch));
}

using Formula = Real (*)(const Numeric_Text&, const Port&, const Control&, const Units&);

struct Energy_Cell {
    const Control& gate;
    const Control& velocity;
    Control& target;
};

void Fill(Session& session, const Energy_Cell& cell, const Port& port, Formula formula) {
    // The text "0" alone is spared: "0.0" goes through and gives a zero.
    if (cell.gate.Text() == "0") {
        return;
    }
    const Energy_Units units = Units_Of(session);
    cell.target.Set_Text(session.number.Fmt_Four_Place(
        formula(session.number, port, cell.velocity, units.factors) * units.energy));
}

} // namespace

void Port_Energy(Session& session, const Test_Columns& test, const Flow_Sheet& sheet, int row) {
    test.derived_intake(row).Set_Text("");
    test.derived_exhaust(row).Set_Text("");
    if (row >= zero_lift_row) {
        Fill(session, {test.energy_gate_intake(row), test.intake(row), test.derived_intake(row)},
             Intake_Port(sheet), Energy);
        Fill(session, {test.energy_gate_exhaust(row), test.exhaust(row), test.derived_exhaust(row)},
             Exhaust_Port(sheet), Energy);
    }
}

void Port_Energy_Density(Session& session, const Test_Columns& test, const Flow_Sheet& sheet,
                         int row) {
    test.derived_intake(row).Set_Text("");
    test.derived_exhaust(row).Set_Text("");
    if (row >= zero_lift_row) {
        // These look at their own columns on both sides.
        Fill(session, {test.intake(row), test.intake(row), test.derived_intake(row)},
             Intake_Port(sheet), Density);
        Fill(session, {test.exhaust(row), test.exhaust(row), test.derived_exhaust(row)},
             Exhaust_Port(sheet), Density);
    }
}

} // namespace kestrum
