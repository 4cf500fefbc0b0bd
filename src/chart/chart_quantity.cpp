#include "chart/chart_quantity.h"

#include "base/units.h"

#include <algorithm>
#include <cmath>

namespace kestrum {

namespace {

using enum Cell_Role;

constexpr double square_centimetres = 6.4516; // in a square inch
constexpr double metres = 0.3048;             // in a foot

constexpr std::array velocity_needs{Port_Volume, Port_Length};
constexpr std::array curtain_needs{Valve_Diameter};
constexpr std::array effective_needs{Valve_Diameter, Throat_Diameter, Stem_Diameter, Seat_Angle,
                                     Seat_Width};

constexpr std::array<Value_Unit, flow_units> No_Unit(int decimals) {
    return {{{"", 1, decimals}, {"", 1, decimals}, {"", 1, decimals}}};
}

constexpr double litres = factor::cubic_foot * 1000 / 60; // in a second

constexpr std::array<Value_Unit, flow_units> flow_in{
    {{"cfm", 1, 1}, {"m3/min", factor::cubic_foot, 3}, {"l/s", litres, 1}}};
constexpr std::array<Value_Unit, flow_units> speed_in{
    {{"ft/s", 1, 1}, {"m/s", metres, 1}, {"m/s", metres, 1}}};
constexpr std::array<Value_Unit, flow_units> flow_by_area_in{
    {{"cfm/sq in", 1, 2},
     {"m3/min/sq cm", factor::cubic_foot / square_centimetres, 4},
     {"l/s/sq cm", litres / square_centimetres, 3}}};

constexpr std::array<Chart_Quantity_Entry, chart_quantities> entries{{
    {Chart_Quantity::Flow,
     "flow",
     "Flow",
     flow_in,
     Corrected_Flow,
     {},
     false,
     true,
     Pressure_Rule::To_Asked},
    {Chart_Quantity::Velocity, "velocity", "Mean port velocity", speed_in, Port_Velocity,
     velocity_needs, false, true, Pressure_Rule::To_Asked},
    {Chart_Quantity::Per_Area, "per-area", "Flow by curtain area", flow_by_area_in, Flow_Per_Area,
     curtain_needs, true, false, Pressure_Rule::To_Asked},
    {Chart_Quantity::Discharge, "cd", "Discharge coefficient", No_Unit(3), Cell_Role::Discharge,
     curtain_needs, true, false, Pressure_Rule::To_Full_Flow},
    {Chart_Quantity::Effective_Discharge, "effective-cd", "Effective discharge coefficient",
     No_Unit(3), Cell_Role::Effective_Discharge, effective_needs, true, false,
     Pressure_Rule::To_Full_Flow},
    {Chart_Quantity::Swirl,
     "swirl",
     "Swirl",
     No_Unit(0),
     None,
     {},
     false,
     false,
     Pressure_Rule::Stays},
}};

} // namespace

const Chart_Quantity_Entry& Entry_Of(Chart_Quantity quantity) {
    return entries.at(static_cast<std::size_t>(quantity));
}

std::span<const Chart_Quantity_Entry> Chart_Quantity_Entries() {
    return entries;
}

std::optional<Chart_Quantity> Quantity_Named(std::string_view name) {
    const auto* const found = std::ranges::find(entries, name, &Chart_Quantity_Entry::name);
    return found == entries.end() ? std::nullopt : std::optional(found->quantity);
}

double Pressure_Factor(Chart_Quantity quantity, double test_pressure, double asked_pressure) {
    switch (Entry_Of(quantity).pressure_rule) {
    case Pressure_Rule::To_Asked:
        return std::sqrt(asked_pressure / test_pressure);
    case Pressure_Rule::To_Full_Flow:
        return std::sqrt(full_flow_pressure / test_pressure);
    case Pressure_Rule::Stays:
        break;
    }
    return 1;
}

} // namespace kestrum
