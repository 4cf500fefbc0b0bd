#pragma once

#include "drawing/figure.h"

#include <array>
#include <cstddef>
#include <vector>

namespace kestrum {

inline constexpr std::size_t most_chart_tests = 8;

/// The colours of a chart. Those of the curves differ in brightness too, and for eyes that lack a
/// kind of cone.
struct Chart_Colours {
    int ground;
    int ink;
    int quiet;
    int grid;
    int rule;
    std::array<int, most_chart_tests> curves;

    [[nodiscard]] int Curve(std::size_t test) const { return curves.at(test % curves.size()); }
};

/// On paper and on light screens.
[[nodiscard]] const Chart_Colours& Light_Chart();
[[nodiscard]] const Chart_Colours& Dark_Chart();

/// The dashes of a test's line of a width; each test has others.
[[nodiscard]] std::vector<double> Dashes_Of(std::size_t test, double width);

/// The outline of a test's mark around a point.
[[nodiscard]] Figure_Path Mark_Of(std::size_t test, Figure_Point centre, double radius);

} // namespace kestrum
