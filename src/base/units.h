#pragma once

#include "base/numeric_text.h"
#include "base/real.h"

#include <string_view>

namespace kestrum {

namespace factor {
inline constexpr double inch = 25.4;                   // millimetres
inline constexpr double thousandths = 1000;            // in an inch
inline constexpr double square_inch = 645.16;          // square millimetres
inline constexpr double cubic_foot = 0.02831684659;    // cubic metres
inline constexpr double litre = 61.023744;             // cubic inches
inline constexpr double foot = 0.30479999999999996;    // metres; this double, just below 0.3048
inline constexpr double horsepower = 0.7457;           // kilowatts
inline constexpr double pound_foot = 1.3558179;        // newton-metres
inline constexpr double cubic_centimetre_inch = 16.39; // cc in a cubic inch, as the sheet has it
} // namespace factor

/// How the numbers of the fields stand to inch units. Every formula takes its inputs to inch
/// units, applies the one formula of the trade and comes back; in US mode all factors are 1, and
/// a multiplication or division by 1 changes no digit.
struct Units {
    Real inch = 1;        // length of an inch
    Real square_inch = 1; // area of a square inch
    Real cubic_foot = 1;  // volume of a cubic foot
    Real foot = 1;        // length of a foot, in speeds
    Real horsepower = 1;
    Real pound_foot = 1;
    Real engine_volume = 1;    // what divides cubic units of length into the engine's size
    Real volume_to_inches = 1; // cubic inches in one unit of the engine's size
    Real lift_unit = 1000; // lifts in an inch of valve diameter: thousandths, or the unit itself
    Real lift_from_thousand = 1; // takes a lift that was divided by 1000 back to its unit
};

/// Thousandths of an inch, cubic feet per minute, feet per second, horsepower.
[[nodiscard]] inline constexpr Units Us_Units() {
    return {};
}

/// Millimetres, cubic metres per minute, metres per second, kilowatts.
[[nodiscard]] inline constexpr Units Metric_Units() {
    constexpr double cubic_millimetres_per_litre = 1000000;
    return {.inch = factor::inch,
            .square_inch = factor::square_inch,
            .cubic_foot = factor::cubic_foot,
            .foot = factor::foot,
            .horsepower = factor::horsepower,
            .pound_foot = factor::pound_foot,
            .engine_volume = cubic_millimetres_per_litre,
            .volume_to_inches = factor::litre,
            .lift_unit = 1,
            .lift_from_thousand = 1000};
}

/// What a number measures.
enum class Quantity {
    None, // words, or a figure of no unit that nobody converts
    Ratio,
    Length,
    Lift, // thousandths of an inch, or millimetres
    Area,
    Displacement,
    Speed,
    Flow,
    Flow_Per_Area,
    Torque,
    Power,
};

struct Unit_Names {
    std::string_view us;
    std::string_view metric;
};

/// Units of a quantity on a sheet; empty for a ratio.
[[nodiscard]] Unit_Names Unit_Of(Quantity quantity);

/// Take a number from the one unit system to the other, with one operation after the other as the
/// fields have always been converted. A quantity without a unit stays.
[[nodiscard]] Real To_Metric(Real value, Quantity quantity);
[[nodiscard]] Real To_Us(Real value, Quantity quantity);

} // namespace kestrum
