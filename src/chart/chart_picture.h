#pragma once

#include "chart/chart_layout.h"
#include "drawing/figure.h"

namespace kestrum {

/// Draws the curves of a chart into a box, with axes, labels at the ends of the curves, markers,
/// and the gain over the baseline in a band below at the same lifts. All of it stays in the box.
void Draw_Chart(Figure& figure, const Chart_Layout& layout);

/// The same without the figures of the labels, which a reading puts there.
void Draw_Curves(Figure& figure, const Chart_Layout& layout);

/// The values at the ends of the curves, beside their names.
void Draw_End_Figures(Figure& figure, const Chart_Layout& layout);

/// The values of all curves at a lift, beside their names: a line at the lift, and a dot on each
/// curve.
void Draw_Reading(Figure& figure, const Chart_Layout& layout, double lift);

} // namespace kestrum
