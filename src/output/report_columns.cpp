#include "output/report_columns.h"

#include "output/flow_figures.h"

#include <array>

namespace kestrum {

/// A column that no sheet has: it is worked out for the report from a velocity.
struct Energy_Column {
    Energy_Formula formula = nullptr;
    /// Its three heading lines.
    std::array<std::string_view, 3> heading{};
};

namespace {

constexpr int head_row = 12; // names of the groups, above the headings

} // namespace

struct Report_Column {
    int check_box;
    std::string_view array;
    int width;
    int first_row = head_row;
    Energy_Column energy{};
};

namespace {

/// A column of page 2, whose cells begin below the row of the group names.
constexpr Report_Column Of_Page_2(int check_box, std::string_view array, int width) {
    return {check_box, array, width, first_heading_row};
}

// Box 14 is for the comments.
constexpr auto report_columns = std::to_array<Report_Column>({
    {0, "Text101", 8},
    {1, "Text102", 10},
    {2, "Text103", 10},
    {3, "Text104", 10},
    {4, "Text105", 10},
    {5, "Text106", 10},
    {6, "Text107", 10},
    {7, "Text109", 9},
    {8, "Text110", 9},
    {9, "Text111", 8},
    {10, "Text112", 8},
    {11, "Text113", 8},
    {12, "Text114", 9},
    {13, "Text115", 9},
    {15, "Text114", 9, head_row, {Energy_Of_Air, {"Port", "Energy", "In."}}},
    {16, "Text115", 9, head_row, {Energy_Of_Air, {"Port", "Energy", "Ex."}}},
    {17, "Text114", 9, head_row, {Energy_Density_Of_Air, {"Port", "Density", "In."}}},
    {18, "Text115", 9, head_row, {Energy_Density_Of_Air, {"Port", "Density", "Ex."}}},
    Of_Page_2(19, "Text201", 10),
    Of_Page_2(20, "Text202", 10),
    Of_Page_2(21, "Text203", 10),
    Of_Page_2(22, "Text204", 10),
    Of_Page_2(23, "Text207", 10),
    Of_Page_2(24, "text205", 10),
    Of_Page_2(25, "Text206", 10),
    Of_Page_2(26, "Text208", 8),
    Of_Page_2(27, "Text209", 8),
    Of_Page_2(28, "Text210", 11),
    Of_Page_2(29, "Text211", 11),
});

} // namespace

Report_Table::Report_Table(Session& session, const Flow_Sheet& sheet)
    : session_(session), sheet_(sheet), pad_(Chosen_Padding(session.Form70().Option2)) {
    const Report_Screen& choice = session.Form70();
    for (const Report_Column& entry : report_columns) {
        if (choice.Check2(entry.check_box).Value() == 1) {
            columns_.push_back({&entry, &sheet.Array(entry.array)});
        }
    }
}

void Report_Table::Append_Row(std::string& line, int row) {
    for (const Column& column : columns_) {
        if (row < column.entry->first_row) {
            continue;
        }
        const int width = column.entry->width;
        if (column.entry->energy.formula == nullptr) {
            pad_(line, width, (*column.cells)(row).Text());
        } else {
            pad_(line, width, Energy_Text(column, row));
        }
    }
}

std::string Report_Table::Energy_Text(const Column& column, int row) {
    const Energy_Column& energy = column.entry->energy;
    if (row >= first_heading_row && row <= last_heading_row) {
        return std::string(energy.heading.at(static_cast<std::size_t>(row - first_heading_row)));
    }
    const Control& velocity = (*column.cells)(row);
    // The text "0" alone is spared: "0.0" goes through and gives a zero.
    if (row < zero_lift_row || velocity.Text() == "0") {
        return " ";
    }
    const Real value = energy.formula(session_, Port_Of(sheet_, velocity.Entry().side), velocity);
    return session_.numbers.Fmt_Three_Place(value);
}

} // namespace kestrum
