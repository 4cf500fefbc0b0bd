#pragma once

#include "base/numeric_text.h"

#include <string_view>

namespace kestrum {

/// What the table derives from the values of two tests.
enum class Comparison {
    Difference,
    Intake_Difference, // both value columns are the same
    Port_Energy,
    Port_Energy_Density,
    Percent,
    Signed_Percent, // for values that can be negative
    Percent_Energy,
    Percent_Density
};

/// How the axis of a graph comes by its limits.
enum class Axis_Rule {
    Tens,          // from 0 to the next ten above
    Tens_Or_One,   // the same in US units, to the next whole number in metric
    Per_Area,      // fixed
    Tens_Show_Big, // as Tens; the low end may be cut off below the lowest value
    Swirl,         // the same, and values can be negative
    Coefficient,   // tenths
    Whole,         // from 0 to the next whole number
    Percent        // whole numbers on both ends
};

/// One of the 18 types of comparison.
struct Compare_Type {
    std::string_view intake; // columns of the sheet
    std::string_view exhaust;
    Comparison comparison;
    Format format; // of a difference
    Axis_Rule axis;
    std::string_view us_axis_text;
    std::string_view metric_axis_text;
    /// Behind "<--- " where the arrow text is not the axis text.
    std::string_view us_arrow_text{};
    std::string_view metric_arrow_text{};

    [[nodiscard]] bool Is_Percent() const { return axis == Axis_Rule::Percent; }

    /// Whether the graph shows the derived columns instead of the values.
    [[nodiscard]] bool Graphs_Derived() const {
        return Is_Percent() || comparison == Comparison::Port_Energy_Density ||
               (comparison == Comparison::Port_Energy && axis == Axis_Rule::Whole);
    }

    [[nodiscard]] bool Shows_Velocity_Unit() const {
        return comparison == Comparison::Port_Energy ||
               comparison == Comparison::Port_Energy_Density;
    }
};

inline constexpr int compare_type_count = 18;

/// The type with a number of 0 to 17.
[[nodiscard]] const Compare_Type& Compare_Type_Of(int number);

} // namespace kestrum
