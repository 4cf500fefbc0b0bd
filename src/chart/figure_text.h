#pragma once

#include "chart/chart_units.h"

#include <optional>
#include <string>

namespace kestrum {

/// A figure as people read it, with so many decimals; empty for nothing.
[[nodiscard]] std::string Fixed_Text(std::optional<double> value, int decimals);

/// The same with its sign, also where it is above 0.
[[nodiscard]] std::string Signed_Text(std::optional<double> value, int decimals);

/// A lift with the decimals of its unit.
[[nodiscard]] std::string Lift_Text(double lift, Lift_Unit unit);

/// A number without needless zeros, at most so many decimals: "0.25", "28".
[[nodiscard]] std::string Bare_Text(double value, int most_decimals);

} // namespace kestrum
