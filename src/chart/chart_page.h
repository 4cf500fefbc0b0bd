#pragma once

#include "chart/chart.h"
#include "chart/chart_layout.h"
#include "drawing/figure.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// Head of the page.
struct Chart_Head {
    std::string title{}; // empty: what the chart shows
    std::string shop{};
    std::string shop_line{};              // address and telephone
    std::optional<Figure_Picture> logo{}; // its box says its size alone
};

/// The page to be handed over: head, chart, tables and comments of the tests, A4, in points. What
/// one page cannot hold goes to further ones. A chart on paper has paper's colours and is whole.
[[nodiscard]] std::vector<Figure> Chart_Pages(const Chart& chart, const Chart_Style& style,
                                              const Chart_Head& head);

} // namespace kestrum
