#pragma once

#include "chart/chart.h"
#include "drawing/figure.h"

#include <string>
#include <vector>

namespace kestrum {

/// Head of the page.
struct Chart_Head {
    std::string title; // empty: what the chart shows
    std::string shop;
    std::string shop_line; // address and telephone
};

/// One page to be handed over: head, chart, tables and comments of the tests. A4, in points.
[[nodiscard]] Figure Chart_Page(const Chart& chart, const Chart_Head& head);

} // namespace kestrum
