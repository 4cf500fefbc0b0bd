#pragma once

#include "base/real.h"
#include "core/session.h"

namespace kestrum {

/// Dimensions of one side's valve seats, in inches and square inches, as the last calculation in
/// US units left them.
struct Seat_Geometry {
    Real valve_diameter;
    Real angle; // degrees
    Real width;
    Real sine;
    Real cosine;
    Real tangent; // read by nothing
    Real radial;
    Real throat_limit;
};

/// What the rows of the last calculation of a sheet added up to.
struct Flow_Totals {
    struct Sum {
        Real total = 0;
        int count = 0;

        void Add(Real value) {
            total += value;
            ++count;
        }
    };

    Sum intake_flow; // every flow is added, those that are not 0 are counted
    Sum exhaust_flow;
    Sum ratio_to_max; // exhaust over intake flow, lifts up to Max Lift
    Sum ratio_all;    // and over all lifts
};

/// The areas of the last valve lift that was looked at, of either side, in square inches.
struct Curtain_Areas {
    Real low;
    Real slant_length; // in inches
    Real high;
    Real effective;
};

/// What the last calculation of a sheet left. One set serves all sheets.
struct Sheet_State {
    int intake_valves = 1;
    int exhaust_valves = 1;
    Seat_Geometry intake_seat;
    Seat_Geometry exhaust_seat;
    Flow_Totals flow_totals;
    Curtain_Areas curtain_areas;
};

[[nodiscard]] inline Sheet_State& Sheets_Of(Session& session) {
    return session.wings.Of<Sheet_State>();
}

[[nodiscard]] inline const Sheet_State& Sheets_Of(const Session& session) {
    return session.wings.Of<Sheet_State>();
}

} // namespace kestrum
