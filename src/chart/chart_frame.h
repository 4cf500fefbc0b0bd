#pragma once

#include "chart/axis_scale.h"
#include "chart/curve_look.h"
#include "chart/monotone_curve.h"
#include "drawing/figure.h"

#include <string>
#include <vector>

namespace kestrum {

/// A frame with its two axes: numbers, ticks and titles stand outside of it.
class Chart_Frame {
public:
    Chart_Frame(Figure& figure, const Figure_Box& box, const Axis_Scale& lifts,
                const Axis_Scale& values, const Chart_Colours& colours)
        : figure_(figure), box_(box), lifts_(lifts), values_(values), colours_(colours) {}

    [[nodiscard]] const Figure_Box& Box() const { return box_; }

    [[nodiscard]] double X(double lift) const;
    [[nodiscard]] double Y(double value) const;

    [[nodiscard]] Figure_Point Place(const Lift_Point& point) const {
        return {.x = X(point.lift), .y = Y(point.value)};
    }

    void Draw_Grid() const;
    /// With numbers of the lifts below it and their title, unless another frame stands there.
    void Draw_Axes(const std::string& value_title, const std::string& lift_title) const;

    /// A line at a lift, its label above the frame.
    void Draw_Marker(double lift, const std::string& label, Text_Anchor anchor) const;

private:
    void Draw_Lift_Axis(const std::string& title) const;
    void Draw_Value_Axis(const std::string& title) const;

    Figure& figure_;
    Figure_Box box_;
    Axis_Scale lifts_;
    Axis_Scale values_;
    Chart_Colours colours_;
};

/// A label that belongs to the end of a curve.
struct End_Label {
    double wanted = 0; // height of the curve's end
    std::string text;
    std::size_t test = 0;
    bool bold = false;
    double place = 0; // where it stands
};

/// Gives labels places between two heights, each as near to its curve's end as the others allow,
/// in the order of the ends and not over each other.
void Spread(std::vector<End_Label>& labels, double line_height, double top, double bottom);

} // namespace kestrum
