#pragma once

#include "chart/monotone_curve.h"

namespace kestrum {

/// The part of a chart that shows.
struct Chart_Part {
    double first_lift = 0;
    double last_lift = 0;
    double low = 0;
    double high = 0;

    bool operator==(const Chart_Part&) const = default;
};

/// By how much a part is taken larger; 1 leaves it.
struct Chart_Zoom {
    double lifts = 1;
    double values = 1;
};

/// A part taken larger or smaller about a point that stays where it is. It never leaves the whole
/// chart.
[[nodiscard]] Chart_Part Zoomed(const Chart_Part& part, const Chart_Part& whole,
                                const Lift_Point& about, const Chart_Zoom& zoom);

/// A part moved by so much, as far as the whole chart goes.
[[nodiscard]] Chart_Part Moved(const Chart_Part& part, const Chart_Part& whole,
                               const Lift_Point& by);

} // namespace kestrum
