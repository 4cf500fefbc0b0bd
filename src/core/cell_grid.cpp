#include "core/cell_grid.h"

#include "screens/compare_screen.h"
#include "screens/flow_sheet.h"
#include "screens/geometry.h"

#include <algorithm>

namespace kestrum {

Block Block_Between(const Spot& one, const Spot& other) {
    return {.first = {.column = std::min(one.column, other.column),
                      .row = std::min(one.row, other.row)},
            .last = {.column = std::max(one.column, other.column),
                     .row = std::max(one.row, other.row)}};
}

bool Is_Block_Cell(const Control& control) {
    const Screen& screen = control.Owner();
    const bool has_blocks = dynamic_cast<const Flow_Sheet*>(&screen) != nullptr ||
                            dynamic_cast<const Compare_Screen*>(&screen) != nullptr;
    return has_blocks && control.Is_Text_Box() && control.Index() != no_index &&
           Place_Of(control).column >= 0;
}

Spot Spot_Of(const Control& cell) {
    const Place place = Place_Of(cell);
    return {.column = place.column, .row = place.row};
}

bool Takes_Input(const Control& cell) {
    return !cell.Present_Look().locked && cell.Present_Look().enabled;
}

Cell_Grid::Cell_Grid(Screen& screen, std::string_view holder) {
    std::vector<Control*> cells;
    for (Control& control : screen.Controls()) {
        if (control.Entry().parent == holder && Is_Block_Cell(control)) {
            const Spot spot = Spot_Of(control);
            const Block present = cells.empty() ? Block_Between(spot, spot) : whole_;
            whole_ = {.first = Block_Between(present.first, spot).first,
                      .last = Block_Between(present.last, spot).last};
            cells.push_back(&control);
        }
    }
    cells_.resize(Slot_Of(whole_.last) + 1);
    for (Control* const cell : cells) {
        cells_[Slot_Of(Spot_Of(*cell))] = cell;
    }
}

std::size_t Cell_Grid::Slot_Of(const Spot& spot) const {
    const auto columns = static_cast<std::size_t>(whole_.last.column - whole_.first.column) + 1;
    return static_cast<std::size_t>(spot.row - whole_.first.row) * columns +
           static_cast<std::size_t>(spot.column - whole_.first.column);
}

Control* Cell_Grid::At(const Spot& spot) const {
    return whole_.Has(spot) ? cells_[Slot_Of(spot)] : nullptr;
}

} // namespace kestrum
