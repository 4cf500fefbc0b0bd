#include "chart/page_table.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double table_title_size = 9.5;
constexpr double head_line = 10;
constexpr double rule_room = 12;
constexpr double largest_text = 8;
constexpr double smallest_text = 5;

/// Heights of a table's parts.
struct Table_Heights {
    double title;
    double line;
    double below;
};

constexpr Table_Heights usual_table{.title = 15, .line = 12, .below = 10};
constexpr Table_Heights tight_table{.title = 13, .line = 8.6, .below = 5};

constexpr double most_name = 0.2; // of the page's width

/// Lines that a reader still takes in.
constexpr std::size_t most_rows = 60;

} // namespace

Page_Table::Page_Table(Chart_Table table, const Figure_Box& page)
    : table_(std::move(table)),
      page_(page),
      text_size_(largest_text),
      places_(table_.columns.size()) {
    if (table_.rows.size() > most_rows) {
        table_.rows.resize(most_rows);
        table_.title += ", the first lifts of more";
    }
    for (std::size_t column = 0; column < places_.size(); ++column) {
        widths_.push_back(Widest(column));
    }
    Place_Columns();
}

/// Titles below groups; beside groups alone they need no line.
bool Page_Table::Has_Titles() const {
    return std::ranges::any_of(table_.columns, [this](const Table_Column& column) {
        return !column.title.empty() && (!column.group.empty() || !Has_Groups());
    });
}

bool Page_Table::Has_Groups() const {
    return std::ranges::any_of(table_.columns,
                               [](const Table_Column& column) { return !column.group.empty(); });
}

Page_Table::Width Page_Table::Widest(std::size_t column) const {
    constexpr std::string_view least = "+00"; // of a column without figures
    Width width{.text = Figure_Text_Width(least, 1, false),
                .title = Figure_Text_Width(table_.columns[column].title, 1, false)};
    for (const std::vector<Table_Cell>& row : table_.rows) {
        width.text = std::max(width.text, Figure_Text_Width(row[column].text, 1, row[column].bold));
    }
    return width;
}

double Page_Table::Text_Width(std::size_t column, double size) const {
    const double width = std::max(widths_[column].text * size, widths_[column].title * (size - 1));
    return column == 0 ? std::min(width, page_.Width() * most_name) : width;
}

/// Left of a column; groups stand farther from each other.
double Page_Table::Gap(std::size_t column, double size) const {
    constexpr double narrow = 0.6; // in heights of the letters
    constexpr double wide = 1.3;
    constexpr double widest = 3.5; // a name stands above a single column
    if (column == 0) {
        return 0;
    }
    const std::string& group = table_.columns[column].group;
    if (column > 1 && group == table_.columns[column - 1].group) {
        return size * narrow;
    }
    const bool is_single =
        column + 1 == places_.size() || table_.columns[column + 1].group != group;
    return size * (is_single && !group.empty() ? widest : wide);
}

void Page_Table::Place_Columns() {
    const auto widths = [&](double size) {
        double sum = 0;
        for (std::size_t column = 0; column < places_.size(); ++column) {
            sum += Text_Width(column, size) + Gap(column, size);
        }
        return sum;
    };
    constexpr double step = 0.2;
    while (text_size_ > smallest_text && widths(text_size_) > page_.Width()) {
        text_size_ -= step;
    }
    double gaps = 0;
    for (std::size_t column = 0; column < places_.size(); ++column) {
        gaps += Gap(column, text_size_);
    }
    // The rest of the width goes between the columns.
    const double rest = page_.Width() - widths(text_size_);
    constexpr double most_stretch = 9; // of few columns, which belong together
    const double stretch = std::min(most_stretch, 1 + (gaps > 0 ? rest / gaps : 0));
    double at = page_.left;
    for (std::size_t column = 0; column < places_.size(); ++column) {
        const double gap = Gap(column, text_size_) * stretch;
        places_[column] = {.left = at, .right = at + gap + Text_Width(column, text_size_)};
        at = places_[column].right;
    }
}

double Page_Table::Head_Height(double line_height) const {
    return head_line * ((Has_Titles() ? 1 : 0) + (Has_Groups() ? 1 : 0)) + rule_room - head_line +
           line_height;
}

double Page_Table::Height(bool is_tight) const {
    const Table_Heights& heights = is_tight ? tight_table : usual_table;
    return heights.title + Head_Height(heights.line) +
           static_cast<double>(table_.rows.size()) * heights.line + heights.below;
}

void Page_Table::Draw_Groups(Figure& figure, double line, const Chart_Colours& colours) const {
    for (std::size_t column = 1; column < places_.size(); ++column) {
        const std::string& group = table_.columns[column].group;
        std::size_t last = column;
        while (last + 1 < places_.size() && table_.columns[last + 1].group == group) {
            ++last;
        }
        if (!group.empty()) {
            constexpr double gap = 6;
            constexpr std::size_t wide_group = 3;
            const double room = places_[last].right - places_[column].left - gap;
            const bool is_wide = last - column >= wide_group;
            figure.Add(
                Figure_Text{.x = is_wide ? places_[last].right - room / 2 : places_[last].right,
                            .y = line,
                            .text = Fitted_Name(group, text_size_, true, room),
                            .size = text_size_,
                            .colour = colours.ink,
                            .bold = true,
                            .anchor = is_wide ? Text_Anchor::Centre : Text_Anchor::Right});
        }
        column = last;
    }
}

void Page_Table::Draw_Head(Figure& figure, double line, const Chart_Colours& colours) const {
    for (std::size_t column = 0; column < places_.size(); ++column) {
        const std::string& title = table_.columns[column].title;
        if (!title.empty()) {
            figure.Add(Figure_Text{.x = column == 0 ? page_.left : places_[column].right,
                                   .y = line,
                                   .text = title,
                                   .size = text_size_ - 1,
                                   .colour = colours.quiet,
                                   .anchor = column == 0 ? Text_Anchor::Left : Text_Anchor::Right});
        }
    }
}

void Page_Table::Draw(Figure& figure, double top, const Chart_Colours& colours,
                      bool is_tight) const {
    const Table_Heights& heights = is_tight ? tight_table : usual_table;
    double line = top + table_title_size;
    figure.Add(Figure_Text{.x = page_.left,
                           .y = line,
                           .text = Fitted_Text(table_.title, table_title_size, true, page_.Width()),
                           .size = table_title_size,
                           .colour = colours.ink,
                           .bold = true});
    line += heights.title;
    if (Has_Groups()) {
        Draw_Groups(figure, line, colours);
        line += Has_Titles() ? head_line : 0;
    }
    Draw_Head(figure, line, colours);
    constexpr double rule_drop = 4;
    figure.Line({page_.left, line + rule_drop}, {page_.right, line + rule_drop}, colours.rule, 0.6);
    line += rule_room - head_line + heights.line;
    for (const std::vector<Table_Cell>& row : table_.rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const Table_Cell& cell = row[column];
            if (cell.text.empty()) {
                continue;
            }
            const bool is_first = column == 0;
            const double room = places_[0].right - page_.left;
            figure.Add(Figure_Text{
                .x = is_first ? page_.left : places_[column].right,
                .y = line,
                .text = is_first ? Fitted_Name(cell.text, text_size_, cell.bold, room) : cell.text,
                .size = text_size_,
                .colour = cell.test ? colours.Curve(*cell.test) : colours.ink,
                .bold = cell.bold,
                .anchor = is_first ? Text_Anchor::Left : Text_Anchor::Right});
        }
        line += heights.line;
    }
}

} // namespace kestrum
