#include "output/flow_figures.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kestrum {

namespace {

enum class Quantity { Ratio, Area, Lift, Flow, Flow_Per_Area, Velocity };

struct Unit_Names {
    std::string_view us;
    std::string_view metric;
};

Unit_Names Unit_Of(Quantity quantity) {
    switch (quantity) {
    case Quantity::Ratio:
        return {"", ""};
    case Quantity::Area:
        return {"sq in", "sq mm"};
    case Quantity::Lift:
        return {"1/1000 in", "mm"};
    case Quantity::Flow:
        return {"cfm", "m3/min"};
    case Quantity::Flow_Per_Area:
        // The metric figure is the US one times both factors, so it is no quotient any more.
        return {"cfm/sq in", "m3/min sq mm"};
    case Quantity::Velocity:
        return {"ft/s", "m/s"};
    }
    return {};
}

using enum Quantity;

struct Column_Quantity {
    std::string_view array;
    Quantity quantity;
};

constexpr auto lift_columns = std::to_array<Column_Quantity>({
    {"Text102", Flow},          {"Text103", Flow},     {"Text104", Lift},
    {"Text105", Lift},          {"Text108", Lift},     {"Text109", Flow_Per_Area},
    {"Text110", Flow_Per_Area}, {"Text111", Ratio},    {"Text112", Ratio},
    {"Text113", Ratio},         {"Text114", Velocity}, {"Text115", Velocity},
    {"Text201", Area},          {"Text202", Area},     {"Text203", Velocity},
    {"Text204", Velocity},      {"text205", Ratio},    {"Text206", Ratio},
    {"Text208", Ratio},         {"Text209", Ratio},
});

struct Caption_Cell {
    std::string_view array{};
    int row = no_index;
};

/// A figure of the header block and the caption cells that name it. Where they do not tell the
/// figures of the two sides or of one row apart, words stand before or behind them.
struct Header_Figure {
    std::string_view array;
    int row;
    Quantity quantity;
    Caption_Cell first;
    Caption_Cell second{};
    std::string_view behind{};
    std::string_view before{};
};

constexpr auto header_figures = std::to_array<Header_Figure>({
    {"Text102", 2, Area, {"Text101", 2}, {}, ", intake"},
    {"Text102", 5, Area, {"Text101", 5}, {}, ", intake"},
    {"Text102", 7, Area, {"Text101", 7}},
    {"Text102", 9, Lift, {"Text101", 9}, {}, ", intake"},
    {"Text102", 11, Flow, {"Text101", 11}, {}, ", intake"},
    {"Text103", 9, Lift, {"Text101", 9}, {}, ", exhaust"},
    {"Text103", 11, Flow, {"Text101", 11}, {}, ", exhaust"},
    {"Text104", 2, Area, {"Text103", 2}, {}, ", exhaust"},
    {"Text104", 5, Area, {"Text103", 5}, {}, ", exhaust"},
    {"Text104", 7, Area, {"Text103", 7}},
    {"Text106", 11, Flow, {"Text105", 11}, {}, ", intake"},
    {"Text107", 4, Ratio, {"Text105", 4}, {"Text106", 4}},
    {"Text107", 5, Ratio, {"Text105", 5}, {"Text106", 5}},
    {"Text107", 11, Flow, {"Text105", 11}, {}, ", exhaust"},
    {"Text110", 2, Area, {"Text109", 2}, {}, ", intake", "Port "},
    {"Text110", 3, Area, {"Text109", 3}, {}, ", exhaust", "Port "},
    {"Text110", 8, Ratio, {"Text109", 8}},
    {"Text111", 2, Area, {"Text105", 1}, {}, ", area lost"},
    {"Text111", 3, Area, {"Text107", 1}, {}, ", area lost"},
    {"Text112", 2, Area, {"Text105", 0}, {}, ", area lost"},
    {"Text112", 3, Area, {"Text107", 0}, {}, ", area lost"},
    {"Text113", 7, Ratio, {"Text111", 7}, {"Text112", 7}},
    {"Text113", 8, Ratio, {"Text111", 8}, {"Text112", 8}},
    {"Text113", 10, Ratio, {"Text111", 10}, {"Text112", 10}},
    {"Text113", 11, Ratio, {"Text111", 11}, {"Text112", 11}},
    {"Text113", 12, Ratio, {"Text111", 11}, {"Text112", 11}, ", all lifts"},
    {"Text115", 7, Ratio, {"Text111", 7}, {"Text114", 7}},
    {"Text115", 8, Ratio, {"Text111", 8}, {"Text114", 8}},
});

std::logic_error No_Words_For(const Control& cell) {
    return std::logic_error(cell.Address() + " is a result without a caption");
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
        throw No_Words_For(cell);
    }
    std::string name(words->before);
    for (const Caption_Cell& caption : {words->first, words->second}) {
        if (caption.row != no_index) {
            Add_Word(name, sheet.Array(caption.array)(caption.row).Text());
        }
    }
    name += words->behind;
    const Unit_Names unit = Unit_Of(words->quantity);
    return {.cell = &cell,
            .lift = nullptr,
            .field = {},
            .name = std::move(name),
            .unit = metric ? unit.metric : unit.us};
}

Flow_Figure Row_Result(const Flow_Sheet& sheet, const Control& cell, bool metric) {
    const auto* const column =
        std::ranges::find(lift_columns, cell.Entry().array, &Column_Quantity::array);
    if (column == lift_columns.end()) {
        throw No_Words_For(cell);
    }
    std::string name;
    for (int row = first_heading_row; row <= last_heading_row; ++row) {
        Add_Word(name, sheet.Array(column->array)(row).Text());
    }
    const Unit_Names unit = Unit_Of(column->quantity);
    return {.cell = &cell,
            .lift = &sheet.Text101(cell.Index()),
            .field = {},
            .name = std::move(name),
            .unit = metric ? unit.metric : unit.us};
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
