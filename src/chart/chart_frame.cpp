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
    return box_.left + Share(lifts_, lift) * box_.Width();
}

double Chart_Frame::Y(double value) const {
    return box_.bottom - Share(values_, value) * box_.Height();
}

void Chart_Frame::Draw_Grid() const {
    constexpr double grid_width = 0.6;
    for (const double lift : lifts_.Ticks()) {
        figure_.Line({X(lift), box_.top}, {X(lift), box_.bottom}, colours_.grid, grid_width);
    }
    for (const double value : values_.Ticks()) {
        figure_.Line({box_.left, Y(value)}, {box_.right, Y(value)}, colours_.grid, grid_width);
    }
}

void Chart_Frame::Draw_Axes(const std::string& value_title, const std::string& lift_title) const {
    Draw_Lift_Axis(lift_title);
    Draw_Value_Axis(value_title);
}

void Chart_Frame::Draw_Lift_Axis(const std::string& title) const {
    constexpr double number_drop = 13;
    constexpr double title_drop = 26;
    figure_.Line({box_.left, box_.bottom}, {box_.right, box_.bottom}, colours_.ink, axis_width);
    for (const double lift : lifts_.Ticks()) {
        const double x = X(lift);
        figure_.Line({x, box_.bottom}, {x, box_.bottom + tick_length}, colours_.ink, axis_width);
        if (!title.empty()) {
            figure_.Add(Figure_Text{.x = x,
                                    .y = box_.bottom + number_drop,
                                    .text = Fixed_Text(lift, lifts_.decimals),
                                    .size = number_size,
                                    .colour = colours_.ink,
                                    .anchor = Text_Anchor::Centre});
        }
    }
    if (!title.empty()) {
        figure_.Add(Figure_Text{.x = (box_.left + box_.right) / 2,
                                .y = box_.bottom + title_drop,
                                .text = title,
                                .size = axis_title_size,
                                .colour = colours_.ink,
                                .anchor = Text_Anchor::Centre});
    }
}

void Chart_Frame::Draw_Value_Axis(const std::string& title) const {
    constexpr double number_gap = 6;
    constexpr double number_drop = 2.8;
    constexpr double title_gap = 36;
    figure_.Line({box_.left, box_.top}, {box_.left, box_.bottom}, colours_.ink, axis_width);
    for (const double value : values_.Ticks()) {
        const double y = Y(value);
        figure_.Line({box_.left - tick_length, y}, {box_.left, y}, colours_.ink, axis_width);
        figure_.Add(Figure_Text{.x = box_.left - number_gap,
                                .y = y + number_drop,
                                .text = Fixed_Text(value, values_.decimals),
                                .size = number_size,
                                .colour = colours_.ink,
                                .anchor = Text_Anchor::Right});
    }
    figure_.Add(Figure_Text{.x = box_.left - title_gap,
                            .y = (box_.top + box_.bottom) / 2,
                            .text = title,
                            .size = axis_title_size,
                            .colour = colours_.ink,
                            .anchor = Text_Anchor::Centre,
                            .upwards = true});
}

void Chart_Frame::Draw_Marker(double lift, const std::string& label, Text_Anchor anchor) const {
    if (lift < lifts_.low || lift > lifts_.high) {
        return;
    }
    constexpr double gap = 4;
    const double x = X(lift);
    figure_.Line({x, box_.top}, {x, box_.bottom}, colours_.quiet, axis_width, {1, 2.5});
    figure_.Add(Figure_Text{.x = x,
                            .y = box_.top - gap,
                            .text = label,
                            .size = number_size - 1,
                            .colour = colours_.quiet,
                            .anchor = anchor});
}

void Spread(std::vector<End_Label>& labels, double line_height, double top, double bottom) {
    std::ranges::stable_sort(labels, {}, &End_Label::wanted);

    // Groups of touching labels; a group stands with its middle where its members want theirs.
    struct Group {
        double sum = 0; // of the places that the members want for the first of them
        std::size_t count = 0;

        [[nodiscard]] double First() const { return sum / static_cast<double>(count); }
    };

    std::vector<Group> groups;
    const auto first_of = [&](const Group& group) {
        const double height = static_cast<double>(group.count - 1) * line_height;
        return std::max(top, std::min(group.First(), bottom - height));
    };
    for (const End_Label& label : labels) {
        groups.push_back({.sum = label.wanted, .count = 1});
        while (groups.size() > 1) {
            const Group last = groups.back();
            Group& before = groups[groups.size() - 2];
            const double span = static_cast<double>(before.count) * line_height;
            if (first_of(before) + span <= first_of(last)) {
                break;
            }
            before.sum += last.sum - static_cast<double>(last.count) * span;
            before.count += last.count;
            groups.pop_back();
        }
    }
    std::size_t at = 0;
    for (const Group& group : groups) {
        for (std::size_t member = 0; member < group.count; ++member) {
            labels[at].place = first_of(group) + static_cast<double>(member) * line_height;
            ++at;
        }
    }
}

} // namespace kestrum
