#pragma once

#include "chart/chart_units.h"
#include "screens/cell_role.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kestrum {

/// What a chart shows of a test.
enum class Chart_Quantity { Flow, Velocity, Per_Area, Discharge, Effective_Discharge, Swirl };
inline constexpr std::size_t chart_quantities = 6;

/// What a quantity becomes at another pressure than the test's.
enum class Pressure_Rule {
    To_Asked,     // as the root of the pressure asked for over the test's
    To_Full_Flow, // a coefficient: it rests on the full flow at 28 inches, whatever is asked for
    Stays
};

inline constexpr double full_flow_pressure = 28; // inches of water

struct Chart_Quantity_Entry {
    Chart_Quantity quantity;
    std::string_view name;                    // of the command line
    std::string_view title;                   // of an axis
    std::array<Value_Unit, flow_units> units; // in the order of `Flow_Unit`
    /// Column of the lift rows; none for the swirl, which stands apart.
    Cell_Role column;
    /// Header figures without which the column says nothing about the test.
    std::span<const Cell_Role> rests_on;
    bool rests_on_valve_count;
    bool begins_at_zero;
    Pressure_Rule pressure_rule;
};

[[nodiscard]] const Chart_Quantity_Entry& Entry_Of(Chart_Quantity quantity);
/// All of them, in the order of the enumeration.
[[nodiscard]] std::span<const Chart_Quantity_Entry> Chart_Quantity_Entries();

/// By its name of the command line.
[[nodiscard]] std::optional<Chart_Quantity> Quantity_Named(std::string_view name);

/// What a value is multiplied by from the test's pressure to the one asked for.
[[nodiscard]] double Pressure_Factor(Chart_Quantity quantity, double test_pressure,
                                     double asked_pressure);

} // namespace kestrum
