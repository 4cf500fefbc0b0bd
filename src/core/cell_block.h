#pragma once

#include "base/numeric_text.h"
#include "core/cell_grid.h"
#include "core/table_text.h"

#include <string>
#include <vector>

namespace kestrum {

/// A cell and the text that it is to hold.
struct New_Text {
    Control* cell;
    std::string text;
};

/// What becomes of a block: the new texts of its cells, or why it gets none at all.
struct Block_Fill {
    std::vector<New_Text> texts;
    /// The spots that the texts go to and those between them.
    Block filled;

    /// Why the fill is refused, in words for the user; empty when it is not.
    std::string refusal;
    /// The piece for which it is refused, where that stands in the pasted table, counted from 1,
    /// and the cell that does not take it; null where there is no cell.
    std::string piece;
    int line = 0;
    int column = 0;
    const Control* cell = nullptr;
};

/// The texts of a block as a spreadsheet takes them; a spot without a cell gives an empty one.
[[nodiscard]] std::string Copied_Block(const Cell_Grid& grid, const Block& block);

/// "0" for the number cells of a block that take input, and nothing for its texts.
[[nodiscard]] Block_Fill Cleared_Block(const Cell_Grid& grid, const Block& block);

/// A table from elsewhere goes into the input cells from a spot on, right and down: its columns go
/// to the columns that take input, one after the other, and its rows down to the end of the figures
/// below the spot. An empty piece clears its cell.
[[nodiscard]] Block_Fill Fill_Inputs(const Numeric_Text& numbers, const Cell_Grid& grid,
                                     const Spot& from, const Table_Rows& table);

/// A table that was copied as a block goes back spot by spot; what meets a locked cell is left out.
[[nodiscard]] Block_Fill Fill_Spots(const Numeric_Text& numbers, const Cell_Grid& grid,
                                    const Spot& from, const Table_Rows& table);

/// One piece goes into all input cells of a block.
[[nodiscard]] Block_Fill Fill_Block(const Numeric_Text& numbers, const Cell_Grid& grid,
                                    const Block& block, const std::string& piece);

} // namespace kestrum
