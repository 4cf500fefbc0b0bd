#pragma once

#include "chart/chart.h"
#include "drawing/figure.h"

#include <string>
#include <vector>

namespace kestrum {

/// A label that belongs to the end of a curve: its name, and a figure in a column of its own.
struct End_Label {
    double wanted = 0; // height of the curve's end
    std::size_t test = 0;
    Chart_Side side = Chart_Side::Intake;
    std::string name;
    std::string figure;
    double place = 0; // where it stands
};

/// Gives labels places between two heights, each as near to its curve's end as the others allow,
/// in the order of the ends and not over each other.
void Spread(std::vector<End_Label>& labels, double line_height, double top, double bottom);

/// Where labels stand: beside a frame, as high as they may.
struct Label_Column {
    double left = 0; // where the names begin
    double right = 0;
    double text_size = 0;
};

} // namespace kestrum
