#include "graph/graph_frame.h"

#include "graph/axis_number.h"
#include "graph/graph_legend.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace kestrum {

namespace {

constexpr int black = 0x000000;

/// Lifts between two X lines, up to a highest lift.
struct Line_Step {
    double up_to;
    double step;
};

constexpr double no_end = std::numeric_limits<double>::infinity();
constexpr std::array<Line_Step, 3> us_steps{{{425, 25}, {750, 50}, {no_end, 100}}};
constexpr std::array<Line_Step, 3> metric_steps{{{20, 1}, {40, 2}, {no_end, 3}}};

/// The X lines at round lifts, the axis drawn out to the next of them. False when they are too
/// many.
bool Work_Out_X_Lines(Session& session) {
    constexpr double most_lines = 2000;
    Graph_State& graph = session.graph;
    if (graph.x_high == 0) {
        return true; // no lift: the usual lines stand
    }
    const std::span<const Line_Step> steps =
        session.Main().Is_Metric() ? std::span<const Line_Step>(metric_steps) : us_steps;
    const Line_Step* step = steps.data();
    while (graph.x_high > step->up_to) {
        ++step;
    }
    const double whole_steps = std::floor(graph.x_high / step->step);
    const bool is_round = whole_steps * step->step == graph.x_high;
    const double lines = is_round ? whole_steps : whole_steps + 1;
    if (lines > most_lines) {
        return false;
    }
    session.x_line_count = static_cast<int>(lines);
    if (!is_round) {
        graph.x_high = lines * step->step;
        graph.x_per_unit = (graph.x_high - graph.x_low) / session.canvas_x_size;
    }
    return true;
}

constexpr int usual_grid_colour = 0x909090;

void Draw_Grid(Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    const bool usual = session.grid_colour == usual_grid_colour;
    canvas.role = usual ? Draw_Role::Grid : Draw_Role::Plain;
    const double width = session.canvas_x_size;
    const double height = session.canvas_y_size;
    for (int line = 1; line < session.x_line_count; ++line) {
        const double x = width / session.x_line_count * line;
        canvas.Grid_Line(x, 0, x, height);
    }
    for (int line = 1; line < session.y_line_count; ++line) {
        const double y = height / session.y_line_count * line;
        canvas.Grid_Line(0, y, width, y);
    }
}

void Draw_Border(Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    const double right = session.canvas_x_size;
    const double bottom = session.canvas_y_size;
    const double left = session.graph.plot_left;
    canvas.pen_width = 3;
    canvas.role = Draw_Role::Frame;
    canvas.Line(left, bottom, right, bottom, black);
    canvas.Line(left, 0, left, bottom, canvas.Text_Colour());
    canvas.Line(left, 0, right, 0, canvas.Text_Colour());
    canvas.Line(right, 0, right, bottom, canvas.Text_Colour());
}

double Grid_Pen(const Session& session) {
    const bool solid = session.graph.grid_style == Line_Style::Solid;
    return solid && session.grid_colour != usual_grid_colour ? 2 : 1;
}

/// Writes the axis numbers from the high end down to the low end; gives those of this graph.
std::span<const std::string> Axis_Numbers(const Numeric_Text& numbers, double high, double low,
                                          int count, std::vector<std::string>& texts) {
    const auto last = static_cast<std::size_t>(std::max(count - 1, 0));
    texts.resize(std::max(texts.size(), last + 1));
    for (std::size_t line = 0; line < last; ++line) {
        texts[line] = Format_Axis_Number(numbers, high - (high - low) / count *
                                                             static_cast<double>(line + 1));
    }
    texts[last] = Format_Axis_Number(numbers, low);
    return std::span(texts).first(last + 1);
}

void Draw_Y_Numbers(const Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    Graph_State& graph = canvas.State();
    const double step = session.canvas_y_size / session.y_line_count;
    double y = 2;
    for (const std::string& text : Axis_Numbers(session.numbers, graph.y_high, graph.y_low,
                                                session.y_line_count, graph.y_label_text)) {
        y += step; // under its own grid line
        canvas.Text_In_Span(" " + text, std::floor(graph.plot_left + 5),
                            std::floor(session.canvas_x_size), y, Span_Mode::Left);
    }
}

double X_Number_Row(const Graph_Canvas& canvas) {
    const double height = canvas.Text_Height();
    return std::floor(canvas.Owner().canvas_y_size - (height * 0.05 + height));
}

void Draw_X_Numbers(const Graph_Canvas& canvas) {
    constexpr double gap = 2;
    const Session& session = canvas.Owner();
    Graph_State& graph = canvas.State();
    const double step = session.canvas_x_size / session.x_line_count;
    double line = session.canvas_x_size;
    for (const std::string& text : Axis_Numbers(session.numbers, graph.x_high, graph.x_low,
                                                session.x_line_count, graph.x_label_text)) {
        line -= step;
        const double left = line - (canvas.Text_Width(text) + gap);
        if (left > 0) {
            canvas.Text_Before(left, X_Number_Row(canvas), text);
        } else {
            canvas.Text(0, X_Number_Row(canvas), text);
        }
    }
}

void Draw_Axis_Texts(Graph_Canvas& canvas) {
    constexpr double largest = 24;
    constexpr double smallest = 18;
    Session& session = canvas.Owner();
    const double left = session.scale_x * legend_left;
    const double number_height = canvas.Text_Height();
    const double number_row = X_Number_Row(canvas);
    const std::string& y_text = session.Form60().Label8.Text();
    canvas.font_size = largest * session.scale_font;
    while (left + canvas.Text_Width(y_text) > session.canvas_x_size &&
           canvas.font_size > smallest * session.scale_font) {
        canvas.font_size -= session.scale_font;
    }
    canvas.Text(left, number_height * 1.15, y_text);
    canvas.Text_In_Span(session.Form60().Label9.Text(), session.graph.plot_left,
                        session.canvas_x_size, number_row - canvas.Text_Height() * 1.1,
                        Span_Mode::Center);
}

/// A caption of the user's under the graph, as large as it fits.
void Draw_Caption(Graph_Canvas& canvas, const Control& caption, double y) {
    if (caption.Text() == caption.Entry().text) {
        return; // the invitation to write one
    }
    constexpr int most_shrinks = 3;
    constexpr double margin = 20;
    const Session& session = canvas.Owner();
    const double left = canvas.State().plot_left + 2;
    const double span = session.canvas_x_size - left;
    canvas.font_size = 24 * session.scale_font;
    for (int shrink = 0;
         shrink < most_shrinks && canvas.Text_Width(caption.Text()) >= span - margin; ++shrink) {
        canvas.font_size /= 1.1;
    }
    canvas.Text_In_Span(caption.Text(), left, session.canvas_x_size, y, Span_Mode::Center);
}

} // namespace

bool Draw_Graph_Frame(Graph_Canvas& canvas) {
    constexpr int usual_lines = 10;
    Session& session = canvas.Owner();
    if (session.grid_on != 1) {
        return true;
    }
    session.x_line_count = usual_lines;
    const Compare_Screen& table = session.Form50();
    const bool counts_lines =
        table.Check2.Value() != 0 && Compare_Screen::Chosen(table.Option4) == 0;
    const bool has_lines = !counts_lines || Work_Out_X_Lines(session);
    const double saved_width = canvas.pen_width;
    canvas.pen_width = Grid_Pen(session);
    Draw_Grid(canvas);
    Draw_Border(canvas);
    canvas.pen_width = saved_width;
    return has_lines;
}

void Draw_Axis_Labels(Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    canvas.role = Draw_Role::Axis_Number;
    Draw_Y_Numbers(canvas);
    Draw_X_Numbers(canvas);
    canvas.role = Draw_Role::Heading;
    Draw_Axis_Texts(canvas);
    canvas.role = Draw_Role::Caption;
    const Compare_Screen& table = canvas.Owner().Form50();
    Draw_Caption(canvas, table.Text71, session.scale_y * 601);
    Draw_Caption(canvas, table.Text72, session.scale_y * 620);
    canvas.role = Draw_Role::Plain;
    canvas.font_size = session.scale_font * 12;
}

} // namespace kestrum
