#pragma once

#include "desktop/theme.h"
#include "screens/screen.h"

#include <optional>
#include <span>
#include <string_view>

namespace kestrum::desktop {

/// How a screen is drawn, beyond what its table says.
struct Form_Design {
    /// Least sizes at the theme's own letter size.
    int column_width = 60;
    int row_height = 20;
    /// How much larger the window opens where the display has the room.
    double opening_scale = 1.2;
    /// Before this row there is a gap, so that the line between two cards touches no cell.
    int gap_before_row = 0;
    /// That many rows at the top hold frames with options, which need more height than cells.
    int rows_of_options = 0;
    /// An array of another page of which the members stand before the rows of this one, and the
    /// width that they take at the theme's own letter size.
    std::string_view row_heads{};
    int first_row_head = 0;
    int row_heads_width = 0;
    /// Parts of the grid that belong together and lie on a card.
    std::span<const Place> cards{};
    /// Stands beside the legend of the fields with a help text.
    std::optional<Place> information_sample{};
};

[[nodiscard]] const Form_Design& Design_Of(const Screen& screen, std::string_view holder);

/// Words for a control that has no caption cell beside it, or whose own caption tells too little.
struct Own_Words {
    Screen_Kind screen;
    std::string_view holder;
    std::string_view array;
    int index = no_index;
    std::string_view words;
    /// Where the words are painted; nowhere when they are only spoken.
    Place place{};
};

[[nodiscard]] std::span<const Own_Words> All_Own_Words();
/// Null for a field that is named by its caption cells.
[[nodiscard]] const Own_Words* Own_Words_Of(const Control& field);

} // namespace kestrum::desktop
