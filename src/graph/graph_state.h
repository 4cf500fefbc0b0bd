#pragma once

#include "core/session.h"
#include "drawing/drawing.h"

#include <array>
#include <string>
#include <vector>

namespace kestrum {

/// A point of a curve.
struct Curve_Point {
    double x = 0;
    double y = 0;
};

inline constexpr int most_curve_points = 15;
using Series = std::array<double, most_curve_points>;

/// Samples of a curve for each point of its test.
inline constexpr int samples_per_point = 100;

inline constexpr int usual_axis_labels = 129;

/// Overlay count while there is no graph to lay over.
inline constexpr int no_graph = 999;

/// What the graph is drawn from. A fresh graph sets it anew; an overlay keeps the axes.
struct Graph_State {
    /// 0 on a fresh graph, 1 to 3 with each overlay.
    int plus_count = no_graph;
    /// Labels of the two compared tests: number and part number.
    std::string from_label;
    std::string to_label;
    int from_point_count = 0;
    int to_point_count = 0;
    int tension = 0;
    Series from_x{};
    Series to_x{};
    Series from_intake{};
    Series from_exhaust{};
    Series to_intake{};
    Series to_exhaust{};
    double x_low = 0;
    double x_high = 0;
    double y_low = 0;
    double y_high = 0;
    double x_per_unit = 0;
    double y_per_unit = 0;
    double legend_offset = 0;
    int y_line_count = 10;
    int x_line_count = 10;
    /// Numbers of the axes from the high end down. They only grow, as more lines are asked for.
    std::vector<std::string> x_label_text = std::vector<std::string>(usual_axis_labels);
    std::vector<std::string> y_label_text = std::vector<std::string>(usual_axis_labels);
    /// Points of the last curve that was tried, and colour, 0xRRGGBB, of the last that was drawn.
    int curve_point_count = 0;
    int curve_colour = 0;
    /// Pen of the canvas, and what it was before a line by hand took it.
    double draw_width = 1;
    double saved_draw_width = 0;
    int plot_left = 0;
    int plot_right = 599;
    int plot_bottom = 599;
    /// What stands on the canvas of `Form60`, hand drawing included.
    Drawing canvas;
    /// The mouse draws on the canvas, from this point on.
    bool drawing_now = false;
    Curve_Point pen_at;
    bool logo_moving = false;
};

[[nodiscard]] inline Graph_State& Graph_Of(Session& session) {
    return session.wings.Of<Graph_State>();
}

[[nodiscard]] inline const Graph_State& Graph_Of(const Session& session) {
    return session.wings.Of<Graph_State>();
}

} // namespace kestrum
