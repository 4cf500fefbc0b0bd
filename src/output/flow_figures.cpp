#include "output/flow_figures.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kestrum {

namespace {

struct Caption_Cell {
    std::string_view array{};
    int row = no_index;
};

/// A figure of the header block and the caption cells that name it. Where they do not tell figures
/// apart, words stand before or behind them; a side that no caption tells is added.
struct Header_Figure {
    std::string_view array;
    int row;
    Caption_Cell first;
    Caption_Cell second{};
    std::string_view behind{};
    std::string_view before{};
};

constexpr auto header_figures = std::to_array<Header_Figure>({
    {"Text102", 2, {"Text101", 2}},
    {"Text102", 5, {"Text101", 5}},
    {"Text102", 7, {"Text101", 7}},
    {"Text102", 9, {"Text101", 9}},
    {"Text102", 11, {"Text101", 11}},
    {"Text103", 9, {"Text101", 9}},
    {"Text103", 11, {"Text101", 11}},
    {"Text104", 2, {"Text103", 2}},
    {"Text104", 5, {"Text103", 5}},
    {"Text104", 7, {"Text103", 7}},
    {"Text106", 11, {"Text105", 11}},
    {"Text107", 4, {"Text105", 4}, {"Text106", 4}},
    {"Text107", 5, {"Text105", 5}, {"Text106", 5}},
    {"Text107", 11, {"Text105", 11}},
    {"Text110", 2, {"Text109", 2}, {}, {}, "Port "},
    {"Text110", 3, {"Text109", 3}, {}, {}, "Port "},
    {"Text110", 8, {"Text109", 8}},
    {"Text111", 2, {"Text105", 1}, {}, ", area lost"},
    {"Text111", 3, {"Text107", 1}, {}, ", area lost"},
    {"Text112", 2, {"Text105", 0}, {}, ", area lost"},
    {"Text112", 3, {"Text107", 0}, {}, ", area lost"},
    {"Text113", 7, {"Text111", 7}, {"Text112", 7}},
    {"Text113", 8, {"Text111", 8}, {"Text112", 8}},
    {"Text113", 10, {"Text111", 10}, {"Text112", 10}},
    {"Text113", 11, {"Text111", 11}, {"Text112", 11}},
    {"Text113", 12, {"Text111", 11}, {"Text112", 11}, ", all lifts"},
    {"Text115", 7, {"Text111", 7}, {"Text114", 7}},
    {"Text115", 8, {"Text111", 8}, {"Text114", 8}},
});

std::string_view Unit_Name(const Control& cell, bool metric) {
    const Unit_Names unit = Unit_Of(cell.Entry().quantity);
    return metric ? unit.metric : unit.us;
}

void Add_Word(std::string& words, const std::string& word) {
    if (!words.empty() && words.back() != ' ' && !word.empty()) {
        words += ' ';
    }
    words += word;
}

Flow_Figure Header_Result(const Flow_Sheet& sheet, const Control& cell, bool metric) {
    const auto* const words = std::ranges::find_if(header_figures, [&](const Header_Figure& one) {
        return one.array == cell.Entry().array && one.row == cell.Index();
    });
    if (words == header_figures.end()) {
        throw std::logic_error(cell.Address() + " is a result without a caption");
    }
    std::string name(words->before);
    const Side side = cell.Entry().side;
    bool side_told = side == Side::Both;
    for (const Caption_Cell& place : {words->first, words->second}) {
        if (place.row != no_index) {
            const Control& caption = sheet.Array(place.array)(place.row);
            Add_Word(name, caption.Text());
            side_told = side_told || caption.Entry().side == side;
        }
    }
    if (!side_told) {
        name += side == Side::Intake ? ", intake" : ", exhaust";
    }
    name += words->behind;
    return {.cell = &cell,
            .lift = nullptr,
            .field = {},
            .name = std::move(name),
            .unit = Unit_Name(cell, metric)};
}

Flow_Figure Row_Result(const Flow_Sheet& sheet, const Control& cell, bool metric) {
    std::string name;
    for (int row = first_heading_row; row <= last_heading_row; ++row) {
        Add_Word(name, sheet.Array(cell.Entry().array)(row).Text());
    }
    return {.cell = &cell,
            .lift = &sheet.Text101(cell.Index()),
            .field = {},
            .name = std::move(name),
            .unit = Unit_Name(cell, metric)};
}

int Place_In_List(const Flow_Figure& figure) {
    return figure.lift == nullptr ? 0 : figure.cell->Index();
}

} // namespace

std::string Flow_Figure::Caption() const {
    return lift == nullptr ? name : name + ", lift " + lift->Text();
}

std::vector<Flow_Figure> Flow_Figures(const Flow_Sheet& sheet, bool metric) {
    std::vector<Flow_Figure> figures;
    for (const Control& cell : sheet.Controls()) {
        if (cell.Entry().use != Cell_Use::Result) {
            continue;
        }
        figures.push_back(cell.Index() < zero_lift_row ? Header_Result(sheet, cell, metric)
                                                       : Row_Result(sheet, cell, metric));
        const std::string address = cell.Address();
        figures.back().field = address.substr(address.find('.') + 1);
    }
    std::ranges::stable_sort(figures, {}, Place_In_List);
    return figures;
}

} // namespace kestrum
