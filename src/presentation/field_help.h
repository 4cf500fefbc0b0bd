#pragma once

#include "screens/screen.h"

#include <span>
#include <string>
#include <string_view>

namespace kestrum {

/// What a beginner at the bench is told of a cell: its name, what it is and where it is measured,
/// or how it is worked out. One line serves all cells that are the same to the calculation.
struct Field_Help {
    Screen_Kind screen = Screen_Kind::Sheet;
    /// By what the cells are to the calculation, or by the members of an array.
    Cell_Role role = Cell_Role::None;
    std::string_view array{};
    int first = no_index;
    int last = no_index;
    std::string_view name{};
    std::string_view words{};
    /// Where the unit does not follow from the cell's quantity.
    Unit_Names unit{};
};

/// All of them, in the order of the manual.
[[nodiscard]] std::span<const Field_Help> All_Field_Help();

/// The line of a cell, null for what is neither an input nor a result.
[[nodiscard]] const Field_Help* Help_Of(const Control& cell);

/// What is shown at a cell: the sentence, and the unit of the present mode.
[[nodiscard]] std::string Help_Words(const Control& cell, bool metric);

/// The chapter of the manual that lists all cells, as Markdown.
[[nodiscard]] std::string Help_Chapter();

} // namespace kestrum
