#pragma once

#include "screens/screen.h"

namespace kestrum {

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

/// Design place of a control. The canvas of the graph is measured in its own 600 units.
[[nodiscard]] Twips Place_In_Twips(const Control& control);
/// Design size of a screen.
[[nodiscard]] Twips Place_In_Twips(const Screen& screen);

} // namespace kestrum
