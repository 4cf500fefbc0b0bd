#pragma once

#include "screens/screen.h"

#include <string_view>
#include <vector>

namespace kestrum {

/// Where a cell stands on its page.
struct Spot {
    int column = 0;
    int row = 0;

    bool operator==(const Spot&) const = default;
};

/// A rectangle of spots, both corners included.
struct Block {
    Spot first;
    Spot last;

    [[nodiscard]] bool Has(const Spot& spot) const {
        return spot.column >= first.column && spot.column <= last.column && spot.row >= first.row &&
               spot.row <= last.row;
    }

    bool operator==(const Block&) const = default;
};

/// The block that has two spots as its corners.
[[nodiscard]] Block Block_Between(const Spot& one, const Spot& other);

/// Whether a control is a cell of which blocks are made: one of a flow sheet's two pages or of the
/// comparison's table. Captions and results are among them, notes and lone fields are not.
[[nodiscard]] bool Is_Block_Cell(const Control& control);

[[nodiscard]] Spot Spot_Of(const Control& cell);

/// Whether the user may put a text into a cell.
[[nodiscard]] bool Takes_Input(const Control& cell);

/// The cells that the bare form of a screen holds, or one of its frames, by their spots.
class Cell_Grid {
public:
    Cell_Grid(Screen& screen, std::string_view holder);

    /// Null where no cell stands.
    [[nodiscard]] Control* At(const Spot& spot) const;

    /// The block of all cells.
    [[nodiscard]] const Block& Whole() const { return whole_; }

private:
    [[nodiscard]] std::size_t Slot_Of(const Spot& spot) const;

    Block whole_;
    std::vector<Control*> cells_;
};

} // namespace kestrum
