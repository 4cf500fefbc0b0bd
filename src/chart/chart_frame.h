#pragma once

#include "chart/axis_scale.h"
#include "chart/curve_look.h"
#include "chart/monotone_curve.h"
#include "drawing/figure.h"

#include <string>

namespace kestrum {

/// A frame with its two axes: numbers, ticks and titles stand outside of it.
struct Chart_Frame {
    Figure_Box box;
    Axis_Scale lifts;
    Axis_Scale values;

    [[nodiscard]] double X(double lift) const;
    [[nodiscard]] double Y(double value) const;
    [[nodiscard]] double Lift_At(double x) const;
    [[nodiscard]] double Value_At(double y) const;

    [[nodiscard]] Figure_Point Place(const Lift_Point& point) const {
        return {.x = X(point.lift), .y = Y(point.value)};
    }

    /// Whether a point lies in the frame.
    [[nodiscard]] bool Has(const Lift_Point& point) const;

    void Draw_Grid(Figure& figure, const Chart_Colours& colours) const;
    /// With numbers of the lifts below it and their title, unless another frame stands there.
    void Draw_Axes(Figure& figure, const Chart_Colours& colours, const std::string& value_title,
                   const std::string& lift_title) const;
};

} // namespace kestrum
