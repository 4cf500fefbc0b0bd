#pragma once

#include <vector>

namespace kestrum {

/// The round numbers of an axis.
struct Axis_Scale {
    double low = 0;
    double high = 1;
    double step = 1;
    int decimals = 0; // that its numbers need

    [[nodiscard]] std::vector<double> Ticks() const;
};

/// An axis over a range in about so many steps of 1, 2, 2.5 or 5 tenths, ones, tens... It ends at
/// its ticks.
[[nodiscard]] Axis_Scale Round_Scale(double low, double high, int about_steps);

/// Of such axes with about so many steps the one that leaves the least of it empty.
[[nodiscard]] Axis_Scale Snug_Scale(double low, double high, int about_steps);

/// The same over exactly the range, whose ends need not be ticks.
[[nodiscard]] Axis_Scale Exact_Scale(double low, double high, int about_steps);

} // namespace kestrum
