#pragma once

#include "screens/screen.h"

namespace kestrum {

/// On every display.
inline constexpr double twips_per_pixel = 15;

/// A place on a screen in twips, 1440 to the inch.
struct Twips {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Cell of the grid that a control stands in: the one of its table line, or that of the column
/// and row in its name ("Text104(6)": fourth column, seventh row).
[[nodiscard]] Place Place_Of(const Control& control);

/// Place of a control on its screen. A picture is measured in its own units, which are pixels.
[[nodiscard]] Twips Place_In_Twips(const Control& control);
/// Place of a screen on the display, and its size there.
[[nodiscard]] Twips Place_In_Twips(const Screen& screen);

} // namespace kestrum
