#pragma once

#include "painting/set_text.h"

#include <QPolygonF>

#include <span>
#include <vector>

namespace kestrum::painting {

enum class Line_End { Butt, Square, Round };

/// How a line is painted.
struct Line_Pen {
    int colour = 0;
    double width = 1;
    Line_Style style = Line_Style::Solid;
    Line_End end = Line_End::Butt;
};

/// How much of what lies below is hidden by the white behind texts.
inline constexpr double veil = 0.62;

/// What writes one kind of picture. Places are in units of the drawing.
class Step_Painter {
public:
    Step_Painter() = default;
    Step_Painter(const Step_Painter&) = delete;
    Step_Painter& operator=(const Step_Painter&) = delete;
    virtual ~Step_Painter() = default;

    virtual void Lines(const QPolygonF& points, const Line_Pen& pen) = 0;
    /// A circle that is white inside.
    virtual void Circle(QPointF centre, double radius, const Line_Pen& pen) = 0;
    /// Translucent white behind texts.
    virtual void Panel(const QRectF& box) = 0;
    virtual void Text(const Set_Text& text) = 0;
};

/// The steps of a drawing in the layers in which they are painted. It needs the drawing as it is.
class Layers {
public:
    explicit Layers(const Drawing& drawing);

    /// The curves, each with a thin white edge where it crosses another, the frame over their ends,
    /// and over them the texts.
    void Paint_Graph(Step_Painter& painter) const;

    /// What the user drew, which lies over all.
    void Paint_Hand_Drawing(Step_Painter& painter) const;

private:
    /// Joined lines, or one other step.
    using Figure = std::span<const Draw_Operation>;

    std::vector<Figure> lines_;
    double frame_right_;
    std::vector<Figure> frame_;
    std::vector<Figure> marks_;
    std::vector<Figure> by_hand_;
    std::vector<const Draw_Operation*> texts_;
};

} // namespace kestrum::painting
