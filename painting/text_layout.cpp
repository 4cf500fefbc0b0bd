#include "painting/text_layout.h"

#include <algorithm>
#include <optional>

namespace kestrum::painting {

namespace {

/// Texts keep clear of the frame's sides; this is of the left one.
constexpr double least_left = 4;

/// At these heights the letters of the usual font are about as wide as the fixed measure, and the
/// two captions, whose rows overlap, are clear of each other.
Letters Letters_For(double size) {
    constexpr double largest_small = 18;
    constexpr double dots_in_unit = 10;
    return {.families = {QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")},
            .dots = dots_in_unit * (size < largest_small ? 0.84 : 0.8),
            .units = 1 / dots_in_unit,
            .line_height = Canvas_Text_Height(size)};
}

Set_Text Set_On_Canvas(Draw_Operation step, double most_right) {
    constexpr double halo_to_height = 0.25;
    if (step.anchor == Text_Anchor::Left) {
        step.cell = std::max(step.cell, least_left);
    }
    const double end = step.anchor == Text_Anchor::Right ? step.x2 : most_right;
    const double room = end > step.cell ? end - step.cell : step.x2 - step.cell;
    Set_Text set = Set_In_Room(step, room, Letters_For(step.size));
    if (step.role == Draw_Role::Axis_Number) {
        set.halo = set.Height() * halo_to_height;
    }
    return set;
}

/// The first place to the right of a box, or its own, where it lies over none of the texts.
double Free_Left(const std::vector<QRectF>& taken, QRectF box) {
    constexpr double gap = 5;
    const auto covers = [&](const QRectF& other) { return other.intersects(box); };
    for (auto found = taken.begin(); found != taken.end();) {
        found = std::ranges::find_if(taken, covers);
        if (found != taken.end()) {
            box.moveLeft(found->right() + gap);
        }
    }
    return box.left();
}

/// A text where it lies over no other one. Where too little room is left for that it stays.
Set_Text Placed(const Draw_Operation& step, const std::vector<QRectF>& taken, double most_right) {
    Set_Text set = Set_On_Canvas(step, most_right);
    const double left = Free_Left(taken, set.Box());
    if (step.anchor == Text_Anchor::Right || left <= set.left ||
        most_right - left <= set.width / 2) {
        return set;
    }
    Draw_Operation moved = step;
    moved.anchor = Text_Anchor::Left;
    moved.cell = left;
    return Set_On_Canvas(moved, most_right);
}

bool Keeps_Its_Place(const Draw_Operation& step) {
    return step.role == Draw_Role::Legend || step.role == Draw_Role::Heading;
}

/// One line, or two under each other, in front of a line of a legend.
void Add_Samples(std::vector<Sample>& samples, const Draw_Operation& step, const Set_Text& text) {
    constexpr double length = 17;
    constexpr double gap = 4; // to the text
    constexpr double between = 1.5;
    const Legend_Curves& curves = step.curves;
    const bool both = curves.intake != no_colour && curves.exhaust != no_colour;
    const double away = both ? (step.width + between) / 2 : 0;
    const double end = text.left - gap;
    const auto add = [&](int colour, double y) {
        if (colour != no_colour) {
            samples.push_back({.from = {end - length, y},
                               .to = {end, y},
                               .pen = {.colour = colour, .width = step.width}});
        }
    };
    add(curves.intake, text.Box().center().y() - away);
    add(curves.exhaust, text.Box().center().y() + away);
}

/// Collects the panels. The lines of a legend share one.
class Panel_Builder {
public:
    void Add(const Draw_Operation& step, QRectF box) {
        constexpr double side = 4;
        constexpr double above = 2;
        box.adjust(-side, -above, side, above);
        const bool is_legend = step.role == Draw_Role::Legend;
        if (is_legend && block_ == step.curves) {
            panels.back() |= box;
        } else {
            panels.push_back(box);
        }
        block_ = is_legend ? std::optional(step.curves) : std::nullopt;
    }

    std::vector<QRectF> panels;

private:
    std::optional<Legend_Curves> block_;
};

/// The box of a text with what stands before it.
QRectF Whole_Box(const Set_Text& text, std::span<const Sample> samples) {
    QRectF box = text.Box();
    for (const Sample& sample : samples) {
        const double half = sample.pen.width / 2;
        box |= QRectF(sample.from, sample.to).adjusted(0, -half, 0, half);
    }
    return box;
}

void Add_Panels(Text_Layout& layout, std::span<const Draw_Operation* const> texts) {
    Panel_Builder builder;
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const Draw_Operation& step = *texts[at];
        const std::size_t samples = layout.samples.size();
        if (step.role == Draw_Role::Legend) {
            Add_Samples(layout.samples, step, layout.texts[at]);
        }
        if (Keeps_Its_Place(step) || step.role == Draw_Role::Caption) {
            builder.Add(step,
                        Whole_Box(layout.texts[at], std::span(layout.samples).subspan(samples)));
        }
    }
    layout.panels = std::move(builder.panels);
}

} // namespace

Text_Layout Lay_Out_Texts(std::span<const Draw_Operation* const> texts, double frame_right) {
    constexpr double clear = 4;
    const double most_right = frame_right - clear;
    Text_Layout layout;
    layout.texts.resize(texts.size());
    std::vector<QRectF> taken;
    for (const bool keeping : {true, false}) {
        for (std::size_t at = 0; at < texts.size(); ++at) {
            if (Keeps_Its_Place(*texts[at]) == keeping) {
                layout.texts[at] = keeping ? Set_On_Canvas(*texts[at], most_right)
                                           : Placed(*texts[at], taken, most_right);
                taken.push_back(layout.texts[at].Box());
            }
        }
    }
    Add_Panels(layout, texts);
    return layout;
}

} // namespace kestrum::painting
