#include "graph/graph_canvas.h"

#include "base/real.h"
#include "graph/graph_state.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrum {

Graph_Canvas::Graph_Canvas(Session& session)
    : pen_width(Graph_Of(session).draw_width),
      font_size(12 * session.display.scale_font),
      session_(session),
      graph_(Graph_Of(session)) {}

void Graph_Canvas::Line(double x1, double y1, double x2, double y2, int colour) const {
    State().canvas.Line(x1, y1, x2, y2, colour, pen_width, Line_Style::Solid, role);
}

void Graph_Canvas::Grid_Line(double x1, double y1, double x2, double y2) const {
    State().canvas.Line(x1, y1, x2, y2, Swapped_Colour(session_.settings.grid.colour), pen_width,
                        session_.settings.grid.style, role);
}

void Graph_Canvas::Vertical_Line(double x, int colour) const {
    if (State().x_per_unit != 0) {
        const double column = (Real(x) / State().x_per_unit).Value();
        State().canvas.Line(column, 0, column, State().plot_bottom, colour, pen_width);
    }
}

void Graph_Canvas::Text(double x, double y, std::string_view text) const {
    State().canvas.Add(Text_Step(x, y, text));
}

void Graph_Canvas::Text_Before(double x, double y, std::string_view text) const {
    Draw_Operation step = Text_Step(x, y, text);
    step.anchor = Text_Anchor::Right;
    step.cell = State().plot_left;
    State().canvas.Add(std::move(step));
}

void Graph_Canvas::Legend_Text(double x, double y, std::string_view text,
                               const Curve_Sample& curves) const {
    Draw_Operation step = Text_Step(x, y, text);
    step.role = Draw_Role::Legend;
    step.width = curves.pen_width;
    step.curves = curves.colours;
    State().canvas.Add(std::move(step));
}

Draw_Operation Graph_Canvas::Text_Step(double x, double y, std::string_view text) const {
    return {.kind = Draw_Kind::Text,
            .x1 = x,
            .y1 = y,
            .x2 = x + Text_Width(text),
            .size = font_size,
            .colour = Text_Colour(),
            .role = role,
            .cell = x,
            .text = std::string(text)};
}

void Graph_Canvas::Text_In_Span(std::string_view text, double left, double right, double y,
                                Span_Mode mode) const {
    const double room = right - left - Text_Width(text);
    if (room <= 0 || mode == Span_Mode::Left) {
        return Text(left, y, text);
    }
    const bool centred = mode == Span_Mode::Center;
    Draw_Operation step = Text_Step(left + (centred ? room / 2 : room), y, text);
    step.anchor = centred ? Text_Anchor::Centre : Text_Anchor::Right;
    step.cell = left;
    step.x2 = right;
    State().canvas.Add(std::move(step));
}

void Graph_Canvas::Mark(const Curve_Point& point, int colour) const {
    constexpr double design_size = 600;
    constexpr double radius = 4;
    // This exponent, not a third.
    const double scale = std::pow(session_.display.canvas_x_size / design_size, 0.3333);
    const Curve_Point centre = Mapped(point);
    State().canvas.Circle(centre.x, centre.y, scale * radius, colour, pen_width);
}

bool Graph_Canvas::Has_Scale() const {
    return State().x_per_unit != 0 && State().y_per_unit != 0;
}

Curve_Point Graph_Canvas::Mapped(const Curve_Point& point) const {
    const Graph_State& graph = State();
    const Real x = (Real(point.x) - graph.x_low) / graph.x_per_unit;
    const Real y =
        session_.display.canvas_y_size - (Real(point.y) - graph.y_low) / graph.y_per_unit;
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

void Stretch_Graph_Canvas(Session& session) {
    const Display_Scale& display = session.display;
    Graph_State& graph = Graph_Of(session);
    // No display is so large; whatever tells of one, no number may run over.
    static constexpr double last_place = 32767;
    const auto place = [](double size) {
        return static_cast<int>(std::min(std::nearbyint(size - 1), last_place));
    };
    graph.plot_right = place(display.canvas_x_size);
    graph.plot_bottom = place(display.canvas_y_size);
    // An overlay goes by the axes of the graph that stands; there may be none yet.
    if (graph.x_per_unit != 0) {
        graph.x_per_unit = (graph.x_high - graph.x_low) / display.canvas_x_size;
    }
    if (graph.y_per_unit != 0) {
        graph.y_per_unit = (graph.y_high - graph.y_low) / display.canvas_y_size;
    }
    graph.canvas.Stretch(display.scale_x, display.scale_y);
    graph.pen_at.x *= display.scale_x;
    graph.pen_at.y *= display.scale_y;
    const Graph_Screen& screen = session.Form60();
    if (session.settings.logo.on) {
        screen.Show_Logo(session.settings.logo.size.value_or(Extent{}));
    }
    screen.Picture1.Repaint();
}

int Swapped_Colour(int colour) {
    constexpr unsigned byte = 0xFF;
    const auto number = static_cast<unsigned>(colour);
    return static_cast<int>((number & byte) << 16U | (number & (byte << 8U)) |
                            (number >> 16U & byte));
}

} // namespace kestrum
