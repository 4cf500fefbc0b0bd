#include "sheet/seat_geometry.h"

#include "base/exact_functions.h"

namespace kestrum {

namespace {

// These digits, not the library's: the last places of the results depend on them.
constexpr double degree = 0.017453292519943278;

} // namespace

void Seat_Geometry_Setup(const Numeric_Text& numbers, const Valve_Side& side, const Units& units) {
    Seat_Geometry& seat = side.seat;
    seat.throat_limit = (circle * Squared(numbers(side.throat_diameter) / 2) / units.square_inch -
                         circle * Squared(numbers(side.stem_diameter) / units.inch / 2)) *
                        side.valves;
    seat.valve_diameter = numbers(side.valve_diameter) / units.inch;
    // The seat's own width is taken as typed in both unit systems.
    seat.angle = numbers(side.seat_angle);
    seat.width = numbers(side.seat_width);
    const Circle_Figures figures = Exact_Circle((seat.angle * degree).Value());
    seat.sine = figures.sine;
    seat.cosine = figures.cosine;
    seat.tangent = figures.tangent;
    seat.radial = seat.cosine * seat.width;
}

Real Effective_Area(Curtain_Areas& areas, const Valve_Side& side, Real lift, const Units& units) {
    const Seat_Geometry& seat = side.seat;
    const Real inches = lift * units.lift_from_thousand / units.inch;
    areas.low = (seat.valve_diameter - 2 * seat.radial + seat.sine * inches * seat.cosine) *
                (side.valves * Real(circle) * (seat.cosine * inches));
    areas.slant_length = 0;
    if (inches > 0) {
        areas.slant_length =
            Power(Squared(inches - seat.width * seat.sine) + Squared(seat.radial), 0.5);
    }
    areas.high =
        side.valves * Real(circle) * (seat.valve_diameter - seat.radial) * areas.slant_length;
    const Real break_lift = seat.width / seat.sine;
    if (break_lift > inches) {
        areas.effective = areas.low; // not capped by the throat
    } else {
        areas.effective = seat.throat_limit < areas.high ? seat.throat_limit : areas.high;
    }
    return areas.effective;
}

} // namespace kestrum
