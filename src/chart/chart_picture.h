#pragma once

#include "chart/chart.h"
#include "chart/curve_look.h"
#include "drawing/figure.h"

namespace kestrum {

/// Draws the curves of a chart into a box, with axes, labels at the ends of the curves, markers,
/// and the gain over the baseline in a band below at the same lifts. All of it stays in the box.
void Draw_Chart(Figure& figure, const Figure_Box& box, const Chart& chart,
                const Chart_Colours& colours);

/// A test's name with its number in the chart, which tells names apart that have to be cut.
[[nodiscard]] std::string Numbered_Name(const Chart& chart, std::size_t test);

/// The side whose gain the band shows and whose table comes first.
[[nodiscard]] Chart_Side Leading_Side(const Chart& chart);

} // namespace kestrum
