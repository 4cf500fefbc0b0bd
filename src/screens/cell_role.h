#pragma once

#include "base/units.h"

#include <array>
#include <utility>

namespace kestrum {

/// Which valve a cell belongs to; `Both` when to none alone.
enum class Side { Both, Intake, Exhaust };

inline constexpr int side_count = 3;

/// What a cell of a flow sheet is in its calculation. The two sides have the same roles.
enum class Cell_Role {
    None,
    // Header.
    Port_Volume,
    Port_Length,
    Mean_Area,
    Valve_Diameter,
    Stem_Diameter,
    Valve_Area,
    Throat_Diameter,
    Throat_Area,
    Throat_Ratio, // throat over valve
    Bore_Ratio,   // valve over engine bore
    Quarter_Diameter,
    Seat_Angle,
    Seat_Width,
    Port_Width,
    Port_Height,
    Top_Corner,
    Bottom_Corner,
    Top_Loss,
    Bottom_Loss,
    Port_Area,
    Area_Ratio, // port over valve
    Total_Flow,
    Mean_Flow,
    // Columns of the lift rows.
    Observed_Flow,
    Depression,
    Corrected_Flow,
    Effective_Lift,
    Flow_Per_Area,
    Discharge,
    Port_Velocity,
    Effective_Area,
    Effective_Velocity,
    Effective_Discharge,
    Lift_Ratio, // lift over valve diameter
};

inline constexpr int cell_role_count = 35;

/// What the cells of a role measure; those that are not here measure nothing that changes with the
/// unit system, as a port's volume, which is in cubic centimetres in both.
inline constexpr auto quantities_of_roles = std::to_array<std::pair<Cell_Role, Quantity>>({
    {Cell_Role::Port_Length, Quantity::Length},
    {Cell_Role::Valve_Diameter, Quantity::Length},
    {Cell_Role::Stem_Diameter, Quantity::Length},
    {Cell_Role::Throat_Diameter, Quantity::Length},
    {Cell_Role::Seat_Width, Quantity::Length},
    {Cell_Role::Port_Width, Quantity::Length},
    {Cell_Role::Port_Height, Quantity::Length},
    {Cell_Role::Top_Corner, Quantity::Length},
    {Cell_Role::Bottom_Corner, Quantity::Length},
    {Cell_Role::Quarter_Diameter, Quantity::Lift},
    {Cell_Role::Effective_Lift, Quantity::Lift},
    {Cell_Role::Mean_Area, Quantity::Area},
    {Cell_Role::Valve_Area, Quantity::Area},
    {Cell_Role::Throat_Area, Quantity::Area},
    {Cell_Role::Top_Loss, Quantity::Area},
    {Cell_Role::Bottom_Loss, Quantity::Area},
    {Cell_Role::Port_Area, Quantity::Area},
    {Cell_Role::Effective_Area, Quantity::Area},
    {Cell_Role::Total_Flow, Quantity::Flow},
    {Cell_Role::Mean_Flow, Quantity::Flow},
    {Cell_Role::Observed_Flow, Quantity::Flow},
    {Cell_Role::Corrected_Flow, Quantity::Flow},
    {Cell_Role::Flow_Per_Area, Quantity::Flow_Per_Area},
    {Cell_Role::Port_Velocity, Quantity::Speed},
    {Cell_Role::Effective_Velocity, Quantity::Speed},
    {Cell_Role::Throat_Ratio, Quantity::Ratio},
    {Cell_Role::Bore_Ratio, Quantity::Ratio},
    {Cell_Role::Area_Ratio, Quantity::Ratio},
    {Cell_Role::Discharge, Quantity::Ratio},
    {Cell_Role::Effective_Discharge, Quantity::Ratio},
    {Cell_Role::Lift_Ratio, Quantity::Ratio},
    {Cell_Role::None, Quantity::None},
    {Cell_Role::Port_Volume, Quantity::None},
    {Cell_Role::Seat_Angle, Quantity::None},
    {Cell_Role::Depression, Quantity::None},
});

[[nodiscard]] constexpr Quantity Quantity_Of(Cell_Role role) {
    for (const auto& [measured, quantity] : quantities_of_roles) {
        if (measured == role) {
            return quantity;
        }
    }
    return Quantity::None;
}

} // namespace kestrum
