#include "graph/graph_canvas.h"

#include "core/real.h"

#include <cmath>

namespace kestrum {

Graph_Canvas::Graph_Canvas(Session& session)
    : pen_width(session.graph.draw_width), font_size(12 * session.scale_font), session_(session) {}

void Graph_Canvas::Line(double x1, double y1, double x2, double y2, int colour) const {
    State().canvas.Line(x1, y1, x2, y2, colour, pen_width);
}

void Graph_Canvas::Grid_Line(double x1, double y1, double x2, double y2) const {
    State().canvas.Line(x1, y1, x2, y2, Swapped_Colour(session_.grid_colour), pen_width,
                        static_cast<Line_Style>(session_.graph.grid_style));
}

void Graph_Canvas::Vertical_Line(double x, int colour) const {
    if (State().x_per_unit != 0) {
        const double at = x / State().x_per_unit;
        Line(at, 0, at, State().plot_bottom, colour);
    }
}

void Graph_Canvas::Text(double x, double y, std::string_view text) const {
    State().canvas.Text(x, y, text, font_size, Text_Colour());
}

void Graph_Canvas::Text_In_Span(std::string_view text, double left, double right, double y,
                                Span_Mode mode) const {
    const double room = right - left - Text_Width(text);
    double x = left;
    if (room > 0 && mode != Span_Mode::Left) {
        x += mode == Span_Mode::Center ? room / 2 : room;
    }
    Text(x, y, text);
}

void Graph_Canvas::Mark(const Curve_Point& point, int colour) const {
    constexpr double design_size = 600;
    constexpr double radius = 4;
    // This exponent, not a third.
    const double scale = std::pow(session_.canvas_x_size / design_size, 0.3333);
    const Curve_Point at = Mapped(point);
    State().canvas.Circle(at.x, at.y, scale * radius, colour, pen_width);
}

Curve_Point Graph_Canvas::Mapped(const Curve_Point& point) const {
    const Graph_State& graph = State();
    const Real x = (Real(point.x) - graph.x_low) / graph.x_per_unit;
    const Real y = session_.canvas_y_size - (Real(point.y) - graph.y_low) / graph.y_per_unit;
    return {x.Value(), y.Value()};
}

double Graph_Canvas::Text_Width(std::string_view text) const {
    return Canvas_Text_Width(text, font_size);
}

double Graph_Canvas::Text_Height() const {
    return Canvas_Text_Height(font_size);
}

int Graph_Canvas::Text_Colour() const {
    return Swapped_Colour(session_.Form60().Picture1.Present_Look().text_colour);
}

int Swapped_Colour(int colour) {
    constexpr unsigned byte = 0xFF;
    const auto number = static_cast<unsigned>(colour);
    return static_cast<int>((number & byte) << 16U | (number & (byte << 8U)) |
                            (number >> 16U & byte));
}

} // namespace kestrum
