#pragma once

#include "graph/graph_state.h"

#include <string_view>

namespace kestrum {

enum class Span_Mode { Left = 1, Center = 2, Right = 3 };

/// What a line of a legend shows of its curves.
struct Curve_Sample {
    Legend_Curves colours;
    double pen_width = 1;
};

/// What the routines of one drawing share: the canvas with its pen, and the mapping of data.
class Graph_Canvas {
public:
    explicit Graph_Canvas(Session& session);

    [[nodiscard]] Session& Owner() const { return session_; }

    [[nodiscard]] Graph_State& State() const { return graph_; }

    double& pen_width;
    double font_size = 12;
    Draw_Role role = Draw_Role::Plain; // of the lines and texts to come

    void Line(double x1, double y1, double x2, double y2, int colour) const;
    void Grid_Line(double x1, double y1, double x2, double y2) const;
    /// A line across the whole frame at an X of the data; none while the X scale is 0. Raises 6
    /// for one too far off.
    void Vertical_Line(double x, int colour) const;
    void Text(double x, double y, std::string_view text) const;
    /// The same for a text that holds to its right end.
    void Text_Before(double x, double y, std::string_view text) const;
    /// A line of a legend with the curves that it is about.
    void Legend_Text(double x, double y, std::string_view text, const Curve_Sample& curves) const;
    /// Writes a text within a span. One as wide as the span starts at its left.
    void Text_In_Span(std::string_view text, double left, double right, double y,
                      Span_Mode mode) const;
    void Mark(const Curve_Point& point, int colour) const;

    /// Whether both axes have a length to draw in.
    [[nodiscard]] bool Has_Scale() const;

    /// A point of the data on the canvas. Raises 6 or 11 when an axis has no length.
    [[nodiscard]] Curve_Point Mapped(const Curve_Point& point) const;

    [[nodiscard]] double Text_Width(std::string_view text) const;
    [[nodiscard]] double Text_Height() const;
    /// Text colour of the canvas, as 0xRRGGBB.
    [[nodiscard]] int Text_Colour() const;

private:
    [[nodiscard]] Draw_Operation Text_Step(double x, double y, std::string_view text) const;

    Session& session_;
    Graph_State& graph_;
};

/// Carries the graph over to a canvas that an adaptation has enlarged: what is drawn there, the
/// hand's lines included, and the logo, which is shown again at its place.
void Stretch_Graph_Canvas(Session& session);

/// The system's blue-green-red number as 0xRRGGBB, or back.
[[nodiscard]] int Swapped_Colour(int colour);

} // namespace kestrum
