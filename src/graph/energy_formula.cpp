#include "graph/energy_formula.h"

#include "base/units.h"

namespace kestrum {

namespace {

/// Joules in a foot-pound; not the rounder figure of the engine screen.
constexpr double joules = 1.35581795;

struct Energy_Units {
    Units factors;
    Real energy;
};

Energy_Units Units_Of(Session& session) {
    return session.Main().Is_Metric() ? Energy_Units{Metric_Units(), joules}
                                      : Energy_Units{Us_Units(), 1};
}

/// Half the mass of the air in the port, times the square of its velocity; foot-pounds.
Real Energy(const Numeric_Text& numbers, const Port& port, const Control& velocity,
            const Units& units) {
    const Real mass = numbers(port.volume) / factor::cubic_centimetre_inch / 1728 / 2 * 0.076;
    return mass * Squared(numbers(velocity) / units.foot);
}

} // namespace

Port Port_Of(const Flow_Sheet& sheet, Side side) {
    return {sheet.Cell(side, Cell_Role::Port_Volume), sheet.Cell(side, Cell_Role::Mean_Area),
            sheet.Cell(side, Cell_Role::Port_Length)};
}

Real Energy_Of_Air(Session& session, const Port& port, const Control& velocity) {
    const Energy_Units units = Units_Of(session);
    return Energy(session.numbers, port, velocity, units.factors) * units.energy;
}

Real Energy_Density_Of_Air(Session& session, const Port& port, const Control& velocity) {
    const Energy_Units units = Units_Of(session);
    const Numeric_Text& numbers = session.numbers;
    // In steps, so that of two failures the first one counts.
    const Real energy = Energy(numbers, port, velocity, units.factors);
    const Real per_area = energy / (numbers(port.area) / units.factors.square_inch);
    return per_area * (12 / (numbers(port.length) / units.factors.inch)) * units.energy;
}

} // namespace kestrum
