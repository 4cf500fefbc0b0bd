#pragma once

#include "base/numeric_text.h"
#include "exchange/csv_columns.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// The texts that one row of the sheet takes, by quantity.
struct Csv_Row {
    std::array<std::string, csv_quantities> texts;

    [[nodiscard]] const std::string& Of(Csv_Quantity quantity) const {
        return texts.at(static_cast<std::size_t>(quantity));
    }
};

struct Csv_Table {
    /// For sheet rows 16 to 30; a row without values is all "0".
    std::vector<Csv_Row> sheet_rows;
    std::vector<std::string> unknown_columns;
    int rows_read = 0;
};

/// Reads a CSV file's decoded content, without touching a sheet: units are those of a sheet that is
/// metric or not, numbers are written in the mode of `number`. Raises `Csv_Fault` for whatever
/// keeps the file from being taken whole.
[[nodiscard]] Csv_Table Read_Csv_Table(const Numeric_Text& numbers, bool metric,
                                       std::string_view content);

} // namespace kestrum
