#pragma once

#include "base/run_time_error.h"
#include "drawing/drawing.h"
#include "drawing/picture_file.h"
#include "screens/control.h"

#include <optional>
#include <string>

namespace kestrum {

// Settings that come as numbers, from files or from dialogs. Every reader takes them through
// these, so that no code behind it meets a value that it does not know.

/// A switch is on at 1 and at nothing else.
[[nodiscard]] constexpr bool Switch_Of(int number) {
    return number == 1;
}

/// A colour has 24 bits; what stands above them is left out.
[[nodiscard]] constexpr Colour Colour_Of(int number) {
    constexpr unsigned all_bits = 0xFFFFFF;
    return static_cast<Colour>(static_cast<unsigned>(number) & all_bits);
}

/// One of the choices that count from 0 to `last`. Raises 380 for another number.
template <typename Choice>
[[nodiscard]] Choice Choice_Of(int number, Choice last) {
    if (number < 0 || number > static_cast<int>(last)) {
        Fail(error::invalid_property_value);
    }
    return static_cast<Choice>(number);
}

/// A size of letters in points that can be shown.
[[nodiscard]] constexpr bool Is_Font_Size(double points) {
    constexpr double largest = 2160;
    return points > 0 && points <= largest;
}

/// The grid of the graph.
struct Grid_Setting {
    bool on = true;
    Colour colour = 0x909090;
    Line_Style style = Line_Style::Solid;
};

/// The logo of the shop, on the graph and at the foot of prints.
struct Logo_Setting {
    bool on = false;
    /// Path of the picture, empty when there is none.
    std::string file;
    /// Of the picture in pixels, nothing when there is none.
    std::optional<Extent> size;
};

/// What the user has chosen for the whole session.
struct Settings {
    Grid_Setting grid;
    Logo_Setting logo;
    bool show_quarter_diameter_line = false;
    bool auto_x_lines = false;
    bool show_data_points = false;
    bool show_big = false;
    /// Pen of the hand on the graph.
    Colour draw_line_color = 99999;
    int draw_line_width = 3;
    /// Entry of the filter that the next import of a flow file begins with.
    int flow_filter_index = 1;
    /// The mouse shows as the plain arrow, on screens to come as well.
    bool plain_pointer = false;
};

} // namespace kestrum
