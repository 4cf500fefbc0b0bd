#pragma once

#include "chart/chart_quantity.h"
#include "chart/curve_look.h"
#include "chart/monotone_curve.h"
#include "chart/test_figures.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum {

enum class Chart_Side { Intake, Exhaust };
inline constexpr std::array chart_sides{Chart_Side::Intake, Chart_Side::Exhaust};

/// Something of each side.
template <typename Kind>
struct Of_Sides {
    Kind intake{};
    Kind exhaust{};

    [[nodiscard]] Kind& operator[](Chart_Side side) {
        return side == Chart_Side::Intake ? intake : exhaust;
    }

    [[nodiscard]] const Kind& operator[](Chart_Side side) const {
        return side == Chart_Side::Intake ? intake : exhaust;
    }
};

/// How tests are to be laid side by side. Lifts are in the lift's unit.
struct Chart_Request {
    Chart_Quantity quantity = Chart_Quantity::Flow;
    Of_Sides<bool> shows{.intake = true, .exhaust = true};
    double pressure = full_flow_pressure; // inches of water in either unit system
    Lift_Unit lift_unit = Lift_Unit::Inch;
    Flow_Unit flow_unit = Flow_Unit::Cubic_Feet;
    std::optional<double> mean_to{};
    std::optional<double> cam_lift{};
    std::optional<double> step{};
    /// Place of the baseline among the tests.
    std::size_t baseline = 0;

    /// Of the quantity.
    [[nodiscard]] const Value_Unit& Unit() const {
        return Entry_Of(quantity).units.at(static_cast<std::size_t>(flow_unit));
    }
};

/// One side of a test, in the units and at the pressure of the request.
struct Chart_Curve {
    std::vector<Lift_Point> points; // without the closed valve
    Monotone_Curve curve;
    std::optional<Lift_Point> peak; // the lowest lift of the highest value
    std::optional<double> mean;
    std::optional<double> event_mean;
};

struct Chart_Entry {
    std::string file;
    std::string name;
    double pressure = full_flow_pressure; // of the test
    Of_Sides<Chart_Curve> sides;
    std::optional<double> ratio;                    // exhaust mean by intake mean, of flow alone
    Of_Sides<std::optional<double>> valve_diameter; // in the unit of the lifts
    std::string comment;
};

/// A value at a lift, and what it is above the baseline's.
struct Chart_Cell {
    std::optional<double> value;
    std::optional<double> gain;
    std::optional<double> percent;
};

struct Chart_Row {
    double lift = 0;
    /// One for each test.
    Of_Sides<std::vector<Chart_Cell>> cells;
};

/// A test with its name and the file that it came from.
struct Chart_Test {
    std::string file;
    Test_Figures figures;
};

/// The range over which the means of a side were taken; nothing without a curve.
struct Mean_Range {
    double from = 0;
    double to = 0;
};

struct Chart {
    Chart_Request request;
    std::vector<Chart_Entry> tests;
    std::vector<Chart_Row> table;
    Of_Sides<std::optional<Mean_Range>> mean_range;

    /// There must be a test.
    [[nodiscard]] const Chart_Entry& Baseline() const { return tests.at(request.baseline); }
};

/// The tests at equal lifts and equal pressure. Raises 6 for a step so small that the table would
/// have no end.
[[nodiscard]] Chart Chart_Of(std::span<const Chart_Test> tests, const Chart_Request& request);

/// The same without the table.
[[nodiscard]] Chart Curves_Of(std::span<const Chart_Test> tests, const Chart_Request& request);

/// The values of all tests at a lift.
[[nodiscard]] Chart_Row Row_At(const Chart& chart, double lift);

/// What a value is above the baseline's.
[[nodiscard]] Chart_Cell Compared(std::optional<double> value, std::optional<double> baseline);

} // namespace kestrum
