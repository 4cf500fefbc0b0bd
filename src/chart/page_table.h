#pragma once

#include "chart/curve_look.h"
#include "drawing/figure.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrum {

struct Table_Cell {
    std::string text;
    std::optional<int> colour{};
    bool bold = false;
};

struct Table_Column {
    std::string title;
    double right = 0; // of its numbers; the first column stands at the left
};

/// A table of a page: a head line, a rule, and lines of numbers that hold to the right.
struct Page_Table {
    std::string title;
    std::vector<Table_Column> columns;
    std::vector<std::vector<Table_Cell>> rows;
    double text_size = 8;
    double line_height = 12;

    [[nodiscard]] double Height() const;
    /// Draws it from a height down and gives the height below it.
    double Draw(Figure& figure, const Figure_Box& page, double top,
                const Chart_Colours& colours) const;
};

} // namespace kestrum
