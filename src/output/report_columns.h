#pragma once

#include "graph/energy_formula.h"
#include "output/padding.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

struct Report_Column;

/// The data table of one flow test in the report, with the columns that are ticked.
class Report_Table {
public:
    Report_Table(Session& session, const Flow_Sheet& sheet);

    /// Appends a row. Raises the errors of the energy formulas.
    void Append_Row(std::string& line, int row);

private:
    struct Column {
        const Report_Column* entry;
        /// What the column shows, or the velocities that its formula starts from.
        const Control_Array* cells;
    };

    [[nodiscard]] std::string Energy_Text(const Column& column, int row);

    Session& session_;
    const Flow_Sheet& sheet_;
    Padding pad_;
    std::vector<Column> columns_;
};

} // namespace kestrum
