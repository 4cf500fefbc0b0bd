#include "graph/graph_frame.h"

#include "graph/axis_number.h"
#include "graph/graph_legend.h"
#include "graph/graph_state.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace kestrum {

namespace {

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
    Graph_State& graph = Graph_Of(session);
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
    graph.x_line_count = static_cast<int>(lines);
    if (!is_round) {
        graph.x_high = lines * step->step;
        graph.x_per_unit = (graph.x_high - graph.x_low) / session.display.canvas_x_size;
    }
    return true;
}

constexpr int usual_grid_colour = 0x909090;

void Draw_Grid(Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    const bool usual = session.settings.grid.colour == usual_grid_colour;
    canvas.role = usual ? Draw_Role::Grid : Draw_Role::Plain;
    const double width = session.display.canvas_x_size;
    const double height = session.display.canvas_y_size;
    const Graph_State& graph = canvas.State();
    for (int line = 1; line < graph.x_line_count; ++line) {
        const double x = width / graph.x_line_count * line;
        canvas.Grid_Line(x, 0, x, height);
    }
    for (int line = 1; line < graph.y_line_count; ++line) {
        const double y = height / graph.y_line_count * line;
        canvas.Grid_Line(0, y, width, y);
    }
}

void Draw_Border(Graph_Canvas& canvas) {
    const Session& session = canvas.Owner();
    const double right = session.display.canvas_x_size;
    const double bottom = session.display.canvas_y_size;
    const double left = canvas.State().plot_left;
    canvas.pen_width = 3;
    canvas.role = Draw_Role::Frame;
    canvas.Line(left, bottom, right, bottom, black);
    canvas.Line(left, 0, left, bottom, canvas.Text_Colour());
    canvas.Line(left, 0, right, 0, canvas.Text_Colour());
    canvas.Line(right, 0, right, bottom, canvas.Text_Colour());
}

double Grid_Pen(const Session& session) {
    const bool solid = session.settings.grid.style == Line_Style::Solid;
    return solid && session.settings.grid.colour != usual_grid_colour ? 2 : 1;
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
    const double step = session.display.canvas_y_size / graph.y_line_count;
    double y = 2;
    for (const std::string& text : Axis_Numbers(session.numbers, graph.y_high, graph.y_low,
                                                graph.y_line_count, graph.y_label_text)) {
        y += step; // under its own grid line
        canvas.Text_In_Span(" " + text, std::floor(graph.plot_left + 5),
                            std::floor(session.display.canvas_x_size), y, Span_Mode::Left);
    }
}

double X_Number_Row(const Graph_Canvas& canvas) {
    const double height = canvas.Text_Height();
    return std::floor(canvas.Owner().display.canvas_y_size - (height * 0.05 + height));
}

void Draw_X_Numbers(const Graph_Canvas& canvas) {
    constexpr double gap = 2;
    const Session& session = canvas.Owner();
    Graph_State& graph = canvas.State();
    const double step = session.display.canvas_x_size / graph.x_line_count;
    double line = session.display.canvas_x_size;
    for (const std::string& text : Axis_Numbers(session.numbers, graph.x_high, graph.x_low,
                                                graph.x_line_count, graph.x_label_text)) {
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
    const double left = session.display.scale_x * legend_left;
    const double number_height = canvas.Text_Height();
    const double number_row = X_Number_Row(canvas);
    const std::string& y_text = session.Form60().Label8.Text();
    canvas.font_size = largest * session.display.scale_font;
    while (left + canvas.Text_Width(y_text) > session.display.canvas_x_size &&
           canvas.font_size > smallest * session.display.scale_font) {
        canvas.font_size -= session.display.scale_font;
    }
    canvas.Text(left, number_height * 1.15, y_text);
    canvas.Text_In_Span(session.Form60().Label9.Text(), Graph_Of(session).plot_left,
                        session.display.canvas_x_size, number_row - canvas.Text_Height() * 1.1,
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
    const double span = session.display.canvas_x_size - left;
    canvas.font_size = 24 * session.display.scale_font;
    for (int shrink = 0;
         shrink < most_shrinks && canvas.Text_Width(caption.Text()) >= span - margin; ++shrink) {
        canvas.font_size /= 1.1;
    }
    canvas.Text_In_Span(caption.Text(), left, session.display.canvas_x_size, y, Span_Mode::Center);
}

} // namespace

bool Draw_Graph_Frame(Graph_Canvas& canvas) {
    constexpr int usual_lines = 10;
    Session& session = canvas.Owner();
    if (!session.settings.grid.on) {
        return true;
    }
    Graph_Of(session).x_line_count = usual_lines;
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
    Draw_Caption(canvas, table.Text71, session.display.scale_y * 601);
    Draw_Caption(canvas, table.Text72, session.display.scale_y * 620);
    canvas.role = Draw_Role::Plain;
    canvas.font_size = session.display.scale_font * 12;
}

} // namespace kestrum
