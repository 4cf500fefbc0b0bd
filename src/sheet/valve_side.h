#pragma once

#include "sheet/sheet_state.h"

namespace kestrum {

/// The lone cells of one side of a sheet.
struct Valve_Cells {
    // Header figures.
    const Control& port_volume;
    const Control& port_length;
    Control& mean_area;
    const Control& valve_diameter;
    const Control& stem_diameter;
    Control& valve_area;
    const Control& throat_diameter;
    Control& throat_area;
    Control& throat_ratio; // throat over valve
    Control& bore_ratio;   // valve over engine bore
    Control& quarter_diameter;
    const Control& seat_angle;
    const Control& seat_width;
    // Port section.
    const Control& width;
    const Control& height;
    const Control& top_corner;
    const Control& bottom_corner;
    Control& top_loss;
    Control& bottom_loss;
    Control& port_area;
    Control& area_ratio;
    /// The field whose length guards the area ratio; the two sides do not guard alike.
    const Control& area_ratio_guard;
    // Averages.
    Control& total_flow;
    Control& mean_flow;
};

/// Its columns of lift rows.
struct Valve_Columns {
    const Control_Array& observed;
    const Control_Array& depression;
    const Control_Array& corrected;
    const Control_Array& effective_lift;
    const Control_Array& flow_per_area;
    const Control_Array& discharge;
    const Control_Array& port_velocity;
    const Control_Array& effective_area;
    const Control_Array& effective_velocity;
    const Control_Array& effective_discharge;
    const Control_Array& lift_ratio; // lift over diameter
};

/// One side of a sheet, intake or exhaust: its cells, and the shared values that belong to it.
/// The calculation has one body for both; where the sides really differ, the difference stands in
/// that body with the reason.
struct Valve_Side : Valve_Cells, Valve_Columns {
    int& valves;
    Seat_Geometry& seat;
};

/// The cells of a side, as the table of the sheet gives them their roles.
[[nodiscard]] Valve_Side Valve_Side_Of(Session& session, const Flow_Sheet& sheet, Side side);

} // namespace kestrum
