#pragma once

#include "screens/flow_sheet.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// A derived figure of a flow sheet, for those who print it outside of the sheet. It points into
/// the sheet and lives no longer than that.
struct Flow_Figure {
    const Control* cell;
    /// Lift of the figure's row; null in the header block.
    const Control* lift;
    /// "Text102(2)".
    std::string field;
    /// In the words of the sheet's captions; a figure of a lift row has its column's heading.
    std::string name;
    /// Empty for a ratio.
    std::string_view unit;

    /// The name with the lift of the row: "Mean Port Vel In., lift 300".
    [[nodiscard]] std::string Caption() const;
};

/// Every result cell of a sheet: the header block column by column, then row by row. Captions are
/// taken as the sheet shows them, so one that has been converted to metric units must be metric
/// here too.
[[nodiscard]] std::vector<Flow_Figure> Flow_Figures(const Flow_Sheet& sheet, bool metric);

} // namespace kestrum
