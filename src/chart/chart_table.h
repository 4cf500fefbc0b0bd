#pragma once

#include "chart/chart.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum {

struct Table_Cell {
    std::string text;
    /// Whose colour it has.
    std::optional<std::size_t> test{};
    bool bold = false;
};

struct Table_Column {
    /// What it shares with its neighbours, and what it has alone.
    std::string group;
    std::string title;
};

/// The texts of a table of figures.
struct Chart_Table {
    std::string title;
    std::vector<Table_Column> columns;
    std::vector<std::vector<Table_Cell>> rows;
};

/// Everything, as a spreadsheet wants it, or what a page has room for.
enum class Table_Detail { Whole, Page };

/// A line for each test: peak, mean, event mean, ratio, and what each gains over the baseline.
[[nodiscard]] Chart_Table Summary_Table(const Chart& chart, Table_Detail detail);

/// The values and gains of sides at the lifts of the chart's table.
[[nodiscard]] Chart_Table Lift_Table(const Chart& chart, std::span<const Chart_Side> sides,
                                     Table_Detail detail);

/// The sides that show and have points.
[[nodiscard]] std::vector<Chart_Side> Sides_With_Points(const Chart& chart);

/// Tables as lines with a separator between their fields; a field that holds it stands in quotes.
[[nodiscard]] std::string Separated_Text(std::span<const Chart_Table> tables, char separator);

} // namespace kestrum
