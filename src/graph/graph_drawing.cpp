#include "graph/graph_drawing.h"

#include "graph/curve_fit.h"
#include "graph/graph_canvas.h"
#include "graph/graph_frame.h"
#include "graph/graph_legend.h"
#include "graph/graph_series.h"
#include "graph/graph_state.h"
#include "graph/user_axis.h"

#include <array>
#include <vector>

namespace kestrum {

namespace {

constexpr std::size_t fewest_points = 3;

/// One of the four curves.
struct Curve {
    const Series& x;
    const Series& y;
    int point_count;
    int colour;
    double pen_width;
    /// Cell with the lift of a quarter of the valve diameter.
    const Control& quarter_diameter;
};

/// Points with Y 0 are dropped, but for a first one.
std::vector<Curve_Point> Points_Of(const Curve& curve) {
    std::vector<Curve_Point> points;
    for (std::size_t index = 0; index < static_cast<std::size_t>(curve.point_count); ++index) {
        if (index == 0 || curve.y.at(index) != 0) {
            points.push_back({curve.x.at(index), curve.y.at(index)});
        }
    }
    return points;
}

void Draw_Curve(Graph_Canvas& canvas, const Curve& curve, const std::vector<Curve_Point>& points) {
    Session& session = canvas.Owner();
    canvas.pen_width = curve.pen_width;
    canvas.role = Draw_Role::Curve;
    if (session.Form50().Check1.Value() != 0) {
        canvas.Vertical_Line(session.numbers(curve.quarter_diameter).Value(), curve.colour);
    }
    const int samples = curve.point_count * samples_per_point - 1;
    canvas.State().canvas.Reserve(static_cast<std::size_t>(samples));
    Curve_Point present = canvas.Mapped(points.front());
    Sample_Curve(points, canvas.State().tension, samples, [&](const Curve_Point& sample) {
        const Curve_Point next = canvas.Mapped(sample);
        canvas.Line(present.x, present.y, next.x, next.y, curve.colour);
        present = next;
    });
    if (session.settings.show_data_points) {
        for (const Curve_Point& point : points) {
            canvas.Mark(point, curve.colour);
        }
    }
}

/// Draws a curve unless it has too few points, or an axis no length.
bool Try_Curve(Graph_Canvas& canvas, const Curve& curve) {
    const std::vector<Curve_Point> points = Points_Of(curve);
    canvas.State().curve_point_count = static_cast<int>(points.size());
    if (points.size() < fewest_points || !canvas.Has_Scale()) {
        return false;
    }
    canvas.State().curve_colour = curve.colour;
    Draw_Curve(canvas, curve, points);
    return true;
}

void Report_Failed_Graph(Session& session) {
    session.Message("There is a Problem Generating your Graph\r\n\r\nThere is one known Problem "
                    "which can cause this error and that is not having enough data point to "
                    "Graph.\r\n\r\nOne cause of this is trying to Graph % Change when the 2 lift "
                    "curve are Identical\r\n\r\nIf this is not the case then PLEASE SEND a Print "
                    "Screen of the Compare Screen to Customer Support.\r\n",
                    Box_Icon::Exclamation);
}

void Draw_Curves(Graph_Canvas& canvas) {
    Session& session = canvas.Owner();
    const Graph_State& graph = Graph_Of(session);
    const Compare_Screen& table = session.Form50();
    const Legend_Curves& colours = Colours_Of(graph.plus_count);
    const Shown_Sides shown = Sides_Shown(table);
    const int from = graph.from_point_count;
    const int to = graph.to_point_count;
    const std::array<std::pair<bool, Curve>, 4> curves{{
        {shown.intake,
         {graph.from_x, graph.from_intake, from, colours.intake, thin_pen, table.Text102(11)}},
        {shown.exhaust,
         {graph.from_x, graph.from_exhaust, from, colours.exhaust, thin_pen, table.Text103(11)}},
        {shown.intake,
         {graph.to_x, graph.to_intake, to, colours.intake, thick_pen, table.Text104(11)}},
        {shown.exhaust,
         {graph.to_x, graph.to_exhaust, to, colours.exhaust, thick_pen, table.Text105(11)}},
    }};
    bool failed = false;
    for (std::size_t index = 0; index < curves.size(); ++index) {
        // After a short curve the last one alone is still tried.
        const bool is_last = index + 1 == curves.size();
        if (!curves[index].first || (failed && !is_last)) {
            continue;
        }
        if (!Try_Curve(canvas, curves[index].second) && !failed) {
            failed = true;
            Report_Failed_Graph(session);
        }
    }
}

void Draw_Markers(Graph_Canvas& canvas) {
    Session& session = canvas.Owner();
    const Compare_Screen& table = session.Form50();
    if (const auto lift = User_Limit(session, table.Text3)) {
        canvas.pen_width = 3;
        canvas.Vertical_Line(lift->Value(), black);
    }
    if (const auto lift = User_Limit(session, table.Text4)) {
        canvas.pen_width = 4;
        canvas.Vertical_Line(lift->Value(), black);
    }
}

double Legend_Offset_For(const Session& session, int overlay) {
    constexpr double stretched_first = 90;
    return session.display.scale_y > 1 && overlay == 1 ? stretched_first : overlay * 65 + 20;
}

} // namespace

void Draw_Graph(Session& session) {
    Graph_State& graph = Graph_Of(session);
    Graph_Canvas canvas(session);
    bool has_axes = true;
    if (graph.plus_count == 0) {
        graph.legend_offset = 0;
        graph.canvas.Clear();
        has_axes = Draw_Graph_Frame(canvas);
        Draw_Axis_Labels(canvas);
        Draw_Graph_Legend(canvas);
    } else {
        graph.legend_offset = Legend_Offset_For(session, graph.plus_count);
        Draw_Graph_Legend(canvas);
    }
    if (has_axes) {
        Draw_Curves(canvas);
    } else {
        Report_Failed_Graph(session);
    }
    Draw_Markers(canvas);
    session.Form60().Picture1.Repaint();
}

void Draw_Zero_Line(Session& session) {
    constexpr int pieces = 100;
    constexpr double text_left = 5;
    Graph_State& graph = Graph_Of(session);
    Graph_Canvas canvas(session);
    canvas.role = Draw_Role::Axis_Number;
    if (!canvas.Has_Scale()) {
        return; // the graph has failed, and was told so
    }
    canvas.pen_width = Compare_Screen::Chosen(session.Form50().Option4) == 0 ? 5 : 6;
    for (int piece = 0; piece < pieces; ++piece) {
        const Curve_Point from = canvas.Mapped({graph.x_high / pieces * piece, 0});
        const Curve_Point to = canvas.Mapped({graph.x_high / pieces * (piece + 1), 0});
        graph.canvas.Line(from.x, from.y, to.x, to.y, black, canvas.pen_width);
    }
    canvas.Text_In_Span("0.0 - Zero Line ", text_left, session.display.canvas_x_size,
                        graph.y_low / graph.y_per_unit + session.display.canvas_y_size + 2,
                        Span_Mode::Left);
}

} // namespace kestrum
