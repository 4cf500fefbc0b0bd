#include "painting/layers.h"

#include "painting/polyline.h"
#include "painting/text_layout.h"

#include <algorithm>

namespace kestrum::painting {

namespace {

constexpr int white = 0xFFFFFF;
constexpr double design_width = 600;

/// Half as strong.
int Lighter(int colour) {
    constexpr unsigned half_of_each_byte = 0x7F7F7F;
    const unsigned half = static_cast<unsigned>(colour) >> 1U & half_of_each_byte;
    return static_cast<int>(half + half_of_each_byte);
}

/// Of joined lines.
Line_Pen Pen_Of(const Draw_Operation& line, const QPolygonF& points) {
    Line_Pen pen{.colour = line.colour, .width = line.width, .style = line.style};
    const bool is_dot = points.size() == 2 && points.front() == points.back();
    if (line.by_hand || is_dot) {
        pen.end = Line_End::Round;
    } else if (line.role == Draw_Role::Frame) {
        pen.end = Line_End::Square;
    } else if (line.role == Draw_Role::Grid) {
        pen.colour = Lighter(line.colour);
    }
    return pen;
}

/// Paints figures over each other. No curve lies below the first one, which needs no edge.
void Paint_Lines(std::span<const std::span<const Draw_Operation>> figures, Step_Painter& painter) {
    constexpr double edge = 0.6; // on each side
    bool is_over_curve = false;
    for (const std::span<const Draw_Operation>& lines : figures) {
        const QPolygonF points = Points_Of(lines);
        const Line_Pen pen = Pen_Of(lines.front(), points);
        const bool is_curve = lines.front().role == Draw_Role::Curve;
        if (is_curve && is_over_curve) {
            painter.Lines(points, {.colour = white, .width = pen.width + 2 * edge});
        }
        painter.Lines(points, pen);
        is_over_curve = is_over_curve || is_curve;
    }
}

void Paint_Mark(const Draw_Operation& mark, Step_Painter& painter) {
    constexpr double stroke = 1.4;
    painter.Circle({mark.x1, mark.y1}, mark.radius, {.colour = mark.colour, .width = stroke});
}

} // namespace

Layers::Layers(const Drawing& drawing) : frame_right_(design_width * drawing.Stretched_By().x) {
    Figure steps = drawing.Operations();
    while (!steps.empty()) {
        const std::size_t lines = Joined_Lines(steps);
        const Draw_Operation& step = steps.front();
        const Figure figure = steps.first(std::max<std::size_t>(lines, 1));
        if (lines > 0) {
            const bool is_frame = step.role == Draw_Role::Frame;
            (step.by_hand ? by_hand_ : is_frame ? frame_ : lines_).push_back(figure);
        } else if (step.kind == Draw_Kind::Circle) {
            marks_.push_back(figure);
        } else if (step.kind == Draw_Kind::Text) {
            texts_.push_back(&step);
        }
        steps = steps.subspan(figure.size());
    }
}

void Layers::Paint_Graph(Step_Painter& painter) const {
    Paint_Lines(lines_, painter);
    Paint_Lines(frame_, painter);
    for (const Figure& mark : marks_) {
        Paint_Mark(mark.front(), painter);
    }
    const Text_Layout layout = Lay_Out_Texts(texts_, frame_right_);
    for (const QRectF& panel : layout.panels) {
        painter.Panel(panel);
    }
    for (const Sample& sample : layout.samples) {
        painter.Lines({sample.from, sample.to}, sample.pen);
    }
    for (const Set_Text& text : layout.texts) {
        painter.Text(text);
    }
}

void Layers::Paint_Hand_Drawing(Step_Painter& painter) const {
    Paint_Lines(by_hand_, painter);
}

} // namespace kestrum::painting
