#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kestrum {

/// In what lifts are stated.
enum class Lift_Unit { Inch, Thousandth, Millimetre };

/// In what flow is stated; speeds and areas go with it.
enum class Flow_Unit { Cubic_Feet, Cubic_Metres, Litres };
inline constexpr std::size_t flow_units = 3;

struct Lift_Unit_Entry {
    std::string_view name;
    double in_inch; // how many of them an inch has
    int decimals;   // that a reader needs
};

[[nodiscard]] const Lift_Unit_Entry& Entry_Of(Lift_Unit unit);

/// A unit of a quantity beside the inch units' own.
struct Value_Unit {
    std::string_view name;
    double factor; // from inch units
    int decimals;  // that a reader needs
};

/// A unit as print has it, with raised figures in the place of "m3" and "sq in".
[[nodiscard]] std::string Printed_Unit(std::string_view name);

} // namespace kestrum
