#pragma once

#include "graph/graph_state.h"

#include <functional>
#include <span>
#include <vector>

namespace kestrum {

[[nodiscard]] double Hyp_Cos(double x);
[[nodiscard]] double Hyp_Sin(double x);

/// A parametric cubic spline under tension through at least three points, with uniform knots:
/// what it needs at each point besides the point itself.
[[nodiscard]] std::vector<Curve_Point> Fit_Tension_Spline(std::span<const Curve_Point> points,
                                                          double tension);

/// Samples the curve through the points at `samples` steps of its parameter and hands on each but
/// the first and the last, so a curve ends one step short of its last point.
void Sample_Curve(std::span<const Curve_Point> points, double tension, int samples,
                  const std::function<void(Curve_Point)>& take);

} // namespace kestrum
