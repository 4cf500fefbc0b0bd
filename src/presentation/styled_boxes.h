#pragma once

#include "screens/control.h"

namespace kestrum {

/// Whether a control is a text box that takes the shop's own fonts and alignment. The caption lines
/// of the graph keep theirs.
[[nodiscard]] inline bool Is_Styled_Box(const Control& control) {
    const std::string_view name = control.Entry().array;
    return control.Is_Text_Box() && name != "Text71" && name != "Text72";
}

} // namespace kestrum
