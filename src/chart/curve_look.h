#pragma once

#include "drawing/figure.h"

#include <cstddef>
#include <vector>

namespace kestrum {

/// What tells the eight tests of a chart apart, also in grey and for eyes that see few colours:
/// each differs in colour, brightness, dashes and mark.
struct Curve_Look {
    int colour = 0;
    std::vector<double> dashes; // in widths of the line
};

[[nodiscard]] Curve_Look Look_Of_Curve(std::size_t test);

/// The dashes of a line of a width.
[[nodiscard]] std::vector<double> Dashes_Of(std::size_t test, double width);

/// The outline of a test's mark around a point.
[[nodiscard]] Figure_Path Mark_Of(std::size_t test, Figure_Point centre, double radius);

/// Colours of what surrounds the curves.
struct Chart_Colours {
    int ground = 0xFFFFFF;
    int ink = 0x1F2933;
    int quiet = 0x5B6670;
    int grid = 0xE3E6E8;
    int rule = 0xA9AFB5;
};

} // namespace kestrum
