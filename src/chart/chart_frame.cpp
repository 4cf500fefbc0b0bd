#include "chart/chart_frame.h"

#include "chart/figure_text.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double number_size = 8;
constexpr double axis_title_size = 8.5;
constexpr double tick_length = 3.5;
constexpr double axis_width = 0.8;

double Share(const Axis_Scale& scale, double value) {
    return (value - scale.low) / (scale.high - scale.low);
}

} // namespace

double Chart_Frame::X(double lift) const {
    return box.left + Share(lifts, lift) * box.Width();
}

double Chart_Frame::Y(double value) const {
    return box.bottom - Share(values, value) * box.Height();
}

double Chart_Frame::Lift_At(double x) const {
    return lifts.low + (x - box.left) / box.Width() * (lifts.high - lifts.low);
}

double Chart_Frame::Value_At(double y) const {
    return values.low + (box.bottom - y) / box.Height() * (values.high - values.low);
}

bool Chart_Frame::Has(const Lift_Point& point) const {
    const auto lies_in = [](const Axis_Scale& scale, double value) {
        const double slack = (scale.high - scale.low) * 1e-9;
        return value >= scale.low - slack && value <= scale.high + slack;
    };
    return lies_in(lifts, point.lift) && lies_in(values, point.value);
}

void Chart_Frame::Draw_Grid(Figure& figure, const Chart_Colours& colours) const {
    constexpr double grid_width = 0.6;
    for (const double lift : lifts.Ticks()) {
        figure.Line({X(lift), box.top}, {X(lift), box.bottom}, colours.grid, grid_width);
    }
    for (const double value : values.Ticks()) {
        figure.Line({box.left, Y(value)}, {box.right, Y(value)}, colours.grid, grid_width);
    }
}

namespace {

/// One drawing of a frame's axes.
struct Axis_Drawing {
    const Chart_Frame& frame;
    Figure& figure;
    const Chart_Colours& colours;

    void Draw_Lifts(const std::string& title) const;
    void Draw_Values(const std::string& title) const;
};

void Axis_Drawing::Draw_Lifts(const std::string& title) const {
    constexpr double number_drop = 13;
    constexpr double title_drop = 26;
    figure.Line({frame.box.left, frame.box.bottom}, {frame.box.right, frame.box.bottom},
                colours.ink, axis_width);
    for (const double lift : frame.lifts.Ticks()) {
        const double x = frame.X(lift);
        figure.Line({x, frame.box.bottom}, {x, frame.box.bottom + tick_length}, colours.ink,
                    axis_width);
        if (!title.empty()) {
            figure.Add(Figure_Text{.x = x,
                                   .y = frame.box.bottom + number_drop,
                                   .text = Fixed_Text(lift, frame.lifts.decimals),
                                   .size = number_size,
                                   .colour = colours.ink,
                                   .anchor = Text_Anchor::Centre});
        }
    }
    if (!title.empty()) {
        figure.Add(Figure_Text{.x = (frame.box.left + frame.box.right) / 2,
                               .y = frame.box.bottom + title_drop,
                               .text = title,
                               .size = axis_title_size,
                               .colour = colours.ink,
                               .anchor = Text_Anchor::Centre});
    }
}

void Axis_Drawing::Draw_Values(const std::string& title) const {
    constexpr double number_gap = 6;
    constexpr double number_drop = 2.8;
    constexpr double title_gap = 36;
    figure.Line({frame.box.left, frame.box.top}, {frame.box.left, frame.box.bottom}, colours.ink,
                axis_width);
    for (const double value : frame.values.Ticks()) {
        const double y = frame.Y(value);
        figure.Line({frame.box.left - tick_length, y}, {frame.box.left, y}, colours.ink,
                    axis_width);
        figure.Add(Figure_Text{.x = frame.box.left - number_gap,
                               .y = y + number_drop,
                               .text = Fixed_Text(value, frame.values.decimals),
                               .size = number_size,
                               .colour = colours.ink,
                               .anchor = Text_Anchor::Right});
    }
    figure.Add(Figure_Text{.x = frame.box.left - title_gap,
                           .y = (frame.box.top + frame.box.bottom) / 2,
                           .text = title,
                           .size = axis_title_size,
                           .colour = colours.ink,
                           .anchor = Text_Anchor::Centre,
                           .upwards = true});
}

} // namespace

void Chart_Frame::Draw_Axes(Figure& figure, const Chart_Colours& colours,
                            const std::string& value_title, const std::string& lift_title) const {
    const Axis_Drawing axes{.frame = *this, .figure = figure, .colours = colours};
    axes.Draw_Lifts(lift_title);
    axes.Draw_Values(value_title);
}

} // namespace kestrum
