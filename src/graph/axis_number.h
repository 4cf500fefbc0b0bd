#pragma once

#include "base/numeric_text.h"

#include <string>

namespace kestrum {

/// The text of an axis number. Long ones are cut, not rounded.
[[nodiscard]] std::string Format_Axis_Number(const Numeric_Text& numbers, double value);

} // namespace kestrum
