#pragma once

#include "chart/chart.h"
#include "chart/chart_frame.h"
#include "chart/chart_part.h"
#include "chart/curve_look.h"
#include "chart/end_labels.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// How a chart is drawn.
struct Chart_Style {
    Chart_Colours colours = Light_Chart();
    bool gain_in_percent = false;
    /// Whose gain the band shows; usually that of the leading side.
    std::optional<Chart_Side> gain_side{};
    /// The part that shows; usually the whole.
    std::optional<Chart_Part> part{};
};

/// What a test gains over the baseline from lift to lift.
struct Gain_Curve {
    std::size_t test = 0;
    std::vector<Lift_Point> points;
};

/// Where everything of a chart stands in its box. The chart must outlive it.
struct Chart_Layout {
    const Chart* chart = nullptr;
    Chart_Style style;
    Chart_Side gain_side = Chart_Side::Intake;
    Chart_Part whole;
    Chart_Frame main;
    std::optional<Chart_Frame> band; // below, with the gain
    std::vector<Gain_Curve> gains;
    std::vector<End_Label> labels;
    std::vector<End_Label> gain_labels;
    Label_Column column;

    [[nodiscard]] const Chart_Colours& Colours() const { return style.colours; }

    /// The part that shows.
    [[nodiscard]] Chart_Part Part() const;

    /// The lowest frame, which has the numbers of the lifts.
    [[nodiscard]] const Chart_Frame& Lowest() const { return band ? *band : main; }

    /// The lift at a place between the sides of the frames; that of a row of the table if one is
    /// as near as `reach`.
    [[nodiscard]] std::optional<double> Lift_At(Figure_Point place, double reach) const;
};

[[nodiscard]] Chart_Layout Layout_Of(const Chart& chart, const Chart_Style& style,
                                     const Figure_Box& box);

/// Lifts close enough together for a line without corners, those of the points among them.
[[nodiscard]] std::vector<double> Fine_Lifts(const Chart_Curve& curve, const Chart_Part& part);

/// A test's name with its number in the chart, which tells names apart that have to be cut.
[[nodiscard]] std::string Numbered_Name(const Chart& chart, std::size_t test);

/// The side whose gain the band shows and whose table comes first.
[[nodiscard]] Chart_Side Leading_Side(const Chart& chart);

/// "Valve lift  [mm]".
[[nodiscard]] std::string With_Unit(std::string_view title, std::string_view unit);

/// A value at the end of a curve, without a decimal that says nothing there.
[[nodiscard]] std::string End_Text(std::optional<double> value, const Value_Unit& unit);

/// A gain as the band shows it.
[[nodiscard]] std::string Gain_Text(const Chart_Cell& cell, const Chart_Layout& layout);

} // namespace kestrum
