#include "exchange/csv_columns.h"

#include "base/numeric_text.h"
#include "base/text.h"
#include "exchange/csv_cells.h"

#include <algorithm>

namespace kestrum {

namespace {

using enum Csv_Quantity;

struct Csv_Name {
    std::string_view name;
    Csv_Quantity quantity;
    Csv_Unit unit = Csv_Unit::Sheet;
};

constexpr auto names = std::to_array<Csv_Name>({
    {"lift", Lift},
    {"lift_in", Lift, Csv_Unit::Inch},
    {"lift_thou", Lift, Csv_Unit::Thousandth},
    {"lift_mm", Lift, Csv_Unit::Millimetre},
    {"intake", Intake},
    {"intake_cfm", Intake, Csv_Unit::Cfm},
    {"intake_m3min", Intake, Csv_Unit::Cubic_Metre},
    {"exhaust", Exhaust},
    {"exhaust_cfm", Exhaust, Csv_Unit::Cfm},
    {"exhaust_m3min", Exhaust, Csv_Unit::Cubic_Metre},
    {"swirl", Swirl},
    {"intake_depression", Intake_Depression},
    {"exhaust_depression", Exhaust_Depression},
});

const Csv_Name* Name_Entry(std::string_view cell) {
    const auto* const found = std::ranges::find(names, Lower_Copy(cell), &Csv_Name::name);
    return found == names.end() ? nullptr : found;
}

/// With a point or a comma.
bool Is_Number(std::string_view cell) {
    Numeric_Text numbers;
    try {
        static_cast<void>(numbers.Read_Either_Mark(cell));
    } catch (const Run_Time_Error&) {
        return false;
    }
    return true;
}

/// A header names a column that is known, or holds no number at all.
bool Is_Header(const std::vector<std::string>& cells) {
    return std::ranges::any_of(cells, Name_Entry) || std::ranges::none_of(cells, Is_Number);
}

std::string Column_Number(std::size_t cell) {
    return "Column " + Numeric_Text().Fmt_Whole(static_cast<double>(cell + 1));
}

void Take_Header(Csv_Columns& columns, const std::vector<std::string>& cells, int line) {
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        const Csv_Name* const entry = Name_Entry(cells[cell]);
        if (entry == nullptr) {
            columns.unknown.push_back(cells[cell].empty() ? Column_Number(cell) : cells[cell]);
            continue;
        }
        auto& column = columns.known.at(static_cast<std::size_t>(entry->quantity));
        if (column) {
            throw Csv_Fault(line, cell + 1, "the column \"" + cells[cell] + "\" comes twice");
        }
        column = {.cell = cell, .unit = entry->unit};
    }
    if (!columns.Of(Lift)) {
        throw Csv_Fault(line, 1, "there is no lift column");
    }
}

} // namespace

Csv_Columns Csv_Columns_Of(const std::vector<std::string>& first_line, int line) {
    Csv_Columns columns;
    columns.cells = first_line.size();
    columns.is_header = Is_Header(first_line);
    if (columns.is_header) {
        Take_Header(columns, first_line, line);
        return columns;
    }
    constexpr std::size_t columns_without_header = 3;
    for (std::size_t cell = 0; cell < first_line.size(); ++cell) {
        if (cell < columns_without_header) {
            columns.known.at(cell) = {.cell = cell};
        } else {
            columns.unknown.push_back(Column_Number(cell));
        }
    }
    return columns;
}

std::string_view Csv_Name_Of(Csv_Quantity quantity, bool metric) {
    const auto* const found = std::ranges::find_if(names, [&](const Csv_Name& entry) {
        const bool is_us_unit = entry.unit == Csv_Unit::Thousandth || entry.unit == Csv_Unit::Cfm;
        const bool is_metric_unit =
            entry.unit == Csv_Unit::Millimetre || entry.unit == Csv_Unit::Cubic_Metre;
        const bool has_unit = quantity == Lift || quantity == Intake || quantity == Exhaust;
        return entry.quantity == quantity && (!has_unit || (metric ? is_metric_unit : is_us_unit));
    });
    return found->name;
}

} // namespace kestrum
