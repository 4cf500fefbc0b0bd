#pragma once

#include "base/numeric_text.h"
#include "screens/screen.h"

namespace kestrum {

/// For each text box in control order: the first "." becomes a "," (free texts and captions too).
void All_Dots_To_Commas(Screen& screen);
/// The same from "," to ".".
void All_Commas_To_Dots(Screen& screen);
/// The one of the two that the mode asks for after texts came in from outside.
void Apply_Decimal_Mode(const Numeric_Text& numbers, Screen& screen);

} // namespace kestrum
