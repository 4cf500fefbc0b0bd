#pragma once

#include "base/units.h"
#include "sheet/sheet_state.h"
#include "sheet/valve_side.h"

namespace kestrum {

/// Of a circle by its diameter, with the digits that the trade uses.
inline constexpr double circle = 3.14159265358979;

/// Reads one side's seat dimensions into the session's set. Raises the error of a field that is no
/// number.
void Seat_Geometry_Setup(const Numeric_Text& numbers, const Valve_Side& side, const Units& units);

/// Effective flow area in square inches of all valves of a side, at a lift that was divided by
/// 1000; what it is chosen from goes to `areas` as well. Raises 11 for a seat angle whose sine is
/// zero.
Real Effective_Area(Curtain_Areas& areas, const Valve_Side& side, Real lift, const Units& units);

} // namespace kestrum
