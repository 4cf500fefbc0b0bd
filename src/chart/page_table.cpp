#include "chart/page_table.h"

namespace kestrum {

namespace {

constexpr double table_title_size = 9.5;
constexpr double title_height = 15;
constexpr double head_height = 14;
constexpr double space_below = 10;

} // namespace

double Page_Table::Height() const {
    return title_height + head_height + static_cast<double>(rows.size()) * line_height +
           space_below;
}

double Page_Table::Draw(Figure& figure, const Figure_Box& page, double top,
                        const Chart_Colours& colours) const {
    double line = top + table_title_size;
    figure.Add(Figure_Text{.x = page.left,
                           .y = line,
                           .text = title,
                           .size = table_title_size,
                           .colour = colours.ink,
                           .bold = true});
    const auto put = [&](std::size_t column, const Table_Cell& cell, double size, int colour) {
        const bool is_first = column == 0;
        figure.Add(Figure_Text{.x = is_first ? page.left : columns[column].right,
                               .y = line,
                               .text = cell.text,
                               .size = size,
                               .colour = cell.colour.value_or(colour),
                               .bold = cell.bold,
                               .anchor = is_first ? Text_Anchor::Left : Text_Anchor::Right});
    };
    line += title_height;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        put(column, {.text = columns[column].title}, text_size - 1, colours.quiet);
    }
    constexpr double rule_drop = 4;
    figure.Line({page.left, line + rule_drop}, {page.right, line + rule_drop}, colours.rule, 0.6);
    line += head_height;
    for (const std::vector<Table_Cell>& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (!row[column].text.empty()) {
                put(column, row[column], text_size, colours.ink);
            }
        }
        line += line_height;
    }
    return top + Height();
}

} // namespace kestrum
