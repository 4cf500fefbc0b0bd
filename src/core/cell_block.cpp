#include "core/cell_block.h"

#include "base/text.h"
#include "core/pasted_text.h"

#include <functional>
#include <span>
#include <utility>

namespace kestrum {

namespace {

/// Longer ones an editor of one line would cut.
constexpr std::size_t longest_piece = 32'767;

bool Is_Number_Cell(const Control& cell) {
    return cell.Entry().filter != Key_Filter::Every_Key;
}

std::string Cleared_Text(const Control& cell) {
    return Is_Number_Cell(cell) ? "0" : "";
}

bool Is_Figure(const Control* cell) {
    return cell != nullptr &&
           (cell->Entry().use == Cell_Use::Input || cell->Entry().use == Cell_Use::Result);
}

void For_Each_Spot(const Block& block, const std::function<void(const Spot&)>& act) {
    for (int row = block.first.row; row <= block.last.row; ++row) {
        for (int column = block.first.column; column <= block.last.column; ++column) {
            act({.column = column, .row = row});
        }
    }
}

/// Collects new texts until one is refused, which ends it all.
class Filling {
public:
    Filling(const Numeric_Text& numbers, const Cell_Grid& grid) : numbers_(numbers), grid_(grid) {}

    /// Gives whether the filling may go on.
    bool Put(const Spot& spot, const std::string& piece) {
        Control& cell = *grid_.At(spot);
        std::string text = Cleared_Text(cell);
        if (!Without_Outer_Blanks(piece).empty()) {
            Pasted_Text taken = Piece_For(numbers_, cell, "", piece);
            if (taken.refusal.empty() && piece.size() > longest_piece) {
                taken.refusal = "That is too much text for one cell.";
            }
            if (!taken.refusal.empty()) {
                return Refuse(piece, std::move(taken.refusal), &cell);
            }
            text = Text_Of(taken.piece);
        }
        Add(spot, {.cell = &cell, .text = std::move(text)});
        return true;
    }

    /// A piece for which there is no cell; an empty one is none.
    bool Put_Nowhere(const std::string& piece) {
        return Without_Outer_Blanks(piece).empty() ||
               Refuse(piece, "Nothing was put in. There is no input cell for it.", nullptr);
    }

    void Add(const Spot& spot, New_Text text) {
        const Block before = fill_.texts.empty() ? Block_Between(spot, spot) : fill_.filled;
        fill_.filled = {.first = Block_Between(before.first, spot).first,
                        .last = Block_Between(before.last, spot).last};
        fill_.texts.push_back(std::move(text));
    }

    /// Goes through the pieces of a table until one is refused.
    void Take(const Table_Rows& table,
              const std::function<bool(std::size_t line, std::size_t column)>& put) {
        for (std::size_t line = 0; line < table.size(); ++line) {
            for (std::size_t column = 0; column < table[line].size(); ++column) {
                if (!put(line, column)) {
                    fill_.line = static_cast<int>(line) + 1;
                    fill_.column = static_cast<int>(column) + 1;
                    return;
                }
            }
        }
    }

    /// What has come together. A block in which nothing can be changed is refused, too.
    [[nodiscard]] Block_Fill Result() && {
        if (fill_.texts.empty() && fill_.refusal.empty()) {
            fill_.refusal = "There is no input cell here.";
        }
        return std::move(fill_);
    }

private:
    bool Refuse(const std::string& piece, std::string reason, const Control* cell) {
        fill_ = {
            .texts = {}, .filled = {}, .refusal = std::move(reason), .piece = piece, .cell = cell};
        return false;
    }

    const Numeric_Text& numbers_;
    const Cell_Grid& grid_;
    Block_Fill fill_;
};

/// Columns that take input, from a spot to the right.
std::vector<int> Input_Columns(const Cell_Grid& grid, const Spot& from) {
    std::vector<int> columns;
    for (Spot spot = from; spot.column <= grid.Whole().last.column; ++spot.column) {
        const Control* const cell = grid.At(spot);
        if (cell != nullptr && Takes_Input(*cell)) {
            columns.push_back(spot.column);
        }
    }
    return columns;
}

/// Rows that take input, from a spot down to the end of the figures.
std::vector<int> Input_Rows(const Cell_Grid& grid, const Spot& from) {
    std::vector<int> rows;
    for (Spot spot = from; Is_Figure(grid.At(spot)); ++spot.row) {
        if (Takes_Input(*grid.At(spot))) {
            rows.push_back(spot.row);
        }
    }
    return rows;
}

} // namespace

std::string Copied_Block(const Cell_Grid& grid, const Block& block) {
    Table_Rows rows;
    For_Each_Spot(block, [&](const Spot& spot) {
        if (spot.column == block.first.column) {
            rows.emplace_back();
        }
        const Control* const cell = grid.At(spot);
        rows.back().push_back(cell == nullptr ? "" : cell->Text());
    });
    return Table_Of_Rows(rows);
}

Block_Fill Cleared_Block(const Cell_Grid& grid, const Block& block) {
    const Numeric_Text numbers; // clearing reads none
    Filling filling(numbers, grid);
    For_Each_Spot(block, [&](const Spot& spot) {
        Control* const cell = grid.At(spot);
        if (cell != nullptr && Takes_Input(*cell)) {
            filling.Add(spot, {.cell = cell, .text = Cleared_Text(*cell)});
        }
    });
    return std::move(filling).Result();
}

Block_Fill Fill_Inputs(const Numeric_Text& numbers, const Cell_Grid& grid, const Spot& from,
                       const Table_Rows& table) {
    const std::vector<int> columns = Input_Columns(grid, from);
    std::vector<int> rows;
    if (!columns.empty()) {
        rows = Input_Rows(grid, {.column = columns.front(), .row = from.row});
    }
    Filling filling(numbers, grid);
    filling.Take(table, [&](std::size_t line, std::size_t column) {
        const std::string& piece = table[line][column];
        if (line >= rows.size() || column >= columns.size()) {
            return filling.Put_Nowhere(piece);
        }
        const Spot spot{.column = columns[column], .row = rows[line]};
        const Control* const cell = grid.At(spot);
        return cell != nullptr && Takes_Input(*cell) ? filling.Put(spot, piece)
                                                     : filling.Put_Nowhere(piece);
    });
    return std::move(filling).Result();
}

Block_Fill Fill_Spots(const Numeric_Text& numbers, const Cell_Grid& grid, const Spot& from,
                      const Table_Rows& table) {
    Filling filling(numbers, grid);
    filling.Take(table, [&](std::size_t line, std::size_t column) {
        const std::string& piece = table[line][column];
        const Spot spot{.column = from.column + static_cast<int>(column),
                        .row = from.row + static_cast<int>(line)};
        const Control* const cell = grid.At(spot);
        if (cell == nullptr) {
            return filling.Put_Nowhere(piece);
        }
        return !Takes_Input(*cell) || filling.Put(spot, piece);
    });
    return std::move(filling).Result();
}

Block_Fill Fill_Block(const Numeric_Text& numbers, const Cell_Grid& grid, const Block& block,
                      const std::string& piece) {
    Filling filling(numbers, grid);
    bool goes_on = true;
    For_Each_Spot(block, [&](const Spot& spot) {
        const Control* const cell = grid.At(spot);
        if (goes_on && cell != nullptr && Takes_Input(*cell)) {
            goes_on = filling.Put(spot, piece);
        }
    });
    return std::move(filling).Result();
}

} // namespace kestrum
