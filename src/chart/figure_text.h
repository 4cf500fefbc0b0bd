#pragma once

#include <optional>
#include <string>

namespace kestrum {

/// A figure as people read it, with so many decimals; empty for nothing.
[[nodiscard]] std::string Fixed_Text(std::optional<double> value, int decimals);

/// The same with its sign, also where it is above 0.
[[nodiscard]] std::string Signed_Text(std::optional<double> value, int decimals);

/// A lift in inches with three decimals, one in millimetres with two.
[[nodiscard]] std::string Lift_Text(double lift, bool metric);

/// A number without needless zeros, at most so many decimals: "0.25", "28".
[[nodiscard]] std::string Bare_Text(double value, int most_decimals);

} // namespace kestrum
