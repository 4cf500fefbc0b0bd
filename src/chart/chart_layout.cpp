#include "chart/chart_layout.h"

#include "chart/figure_text.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double axis_room = 44;   // left of the frames
constexpr double marker_room = 14; // above
constexpr double title_room = 30;  // below
constexpr double band_gap = 16;
constexpr double band_share = 0.27; // of the height of both frames
constexpr double leader_room = 8;   // between a frame and the samples of the lines
constexpr double sample_room = 30;  // a sample and the gap behind it
constexpr double figure_gap = 6;
constexpr double label_size = 7.5;
constexpr double label_line = 9.5;

/// Works one layout out.
class Layout_Maker {
public:
    Layout_Maker(const Chart& chart, const Chart_Style& style, const Figure_Box& box)
        : chart_(chart), box_(box) {
        layout_.chart = &chart;
        layout_.style = style;
        layout_.gain_side = style.gain_side.value_or(Leading_Side(chart));
        layout_.column.text_size = label_size;
        frames_ = {.left = box.left + axis_room,
                   .top = box.top + marker_room,
                   .right = box.right,
                   .bottom = box.bottom - title_room};
    }

    [[nodiscard]] Chart_Layout Make() {
        Find_Ranges();
        const double high = frames_.Height() * (Has_Gains() ? 1 - band_share : 1);
        constexpr double points_in_step = 34;
        const int steps = std::max(2, static_cast<int>(high / points_in_step));
        constexpr int lift_steps = 6;
        const Axis_Scale lifts = Snug_Scale(0, last_, lift_steps);
        const Axis_Scale values = Snug_Scale(low_, high_, steps);
        layout_.whole = {.first_lift = lifts.low,
                         .last_lift = lifts.high,
                         .low = values.low,
                         .high = values.high};
        layout_.main = {.box = frames_, .lifts = lifts, .values = values};
        if (const auto& part = layout_.style.part) {
            layout_.main.lifts = Exact_Scale(part->first_lift, part->last_lift, lift_steps);
            layout_.main.values = Exact_Scale(part->low, part->high, steps);
        }
        Find_Gains();
        Name_Labels();
        Place_Frames();
        Place_Labels();
        return std::move(layout_);
    }

private:
    void Find_Ranges() {
        bool found = false;
        for (const Chart_Entry& test : chart_.tests) {
            for (const Chart_Side side : chart_sides) {
                for (const Lift_Point& point : test.sides[side].points) {
                    low_ = found ? std::min(low_, point.value) : point.value;
                    high_ = found ? std::max(high_, point.value) : point.value;
                    last_ = std::max(last_, point.lift);
                    found = true;
                }
            }
        }
        // From nothing on, unless all values lie far above it.
        constexpr double far_above = 0.6;
        low_ = Entry_Of(chart_.request.quantity).begins_at_zero || low_ < high_ * far_above
                   ? std::min(0.0, low_)
                   : low_;
    }

    [[nodiscard]] bool Has_Gains() const { return chart_.tests.size() > 1; }

    void Find_Gains() {
        if (!Has_Gains()) {
            return;
        }
        const Chart_Side side = layout_.gain_side;
        const Monotone_Curve& baseline = chart_.Baseline().sides[side].curve;
        const Chart_Part part = layout_.Part();
        for (std::size_t test = 0; test < chart_.tests.size(); ++test) {
            const Chart_Curve& own = chart_.tests[test].sides[side];
            if (test == chart_.request.baseline || !own.curve.Is_There()) {
                continue;
            }
            Gain_Curve gain{.test = test, .points = {}};
            for (const double lift : Fine_Lifts(own, part)) {
                const Chart_Cell cell = Compared(own.curve.At(lift), baseline.At(lift));
                if (const auto value = layout_.style.gain_in_percent ? cell.percent : cell.gain) {
                    gain.points.push_back({.lift = lift, .value = *value});
                }
            }
            if (gain.points.size() > 1) {
                layout_.gains.push_back(std::move(gain));
            }
        }
    }

    void Name_Labels() {
        const bool both = chart_.request.shows.intake && chart_.request.shows.exhaust;
        for (std::size_t test = 0; test < chart_.tests.size(); ++test) {
            for (const Chart_Side side : chart_sides) {
                if (!chart_.tests[test].sides[side].points.empty()) {
                    const std::string_view word = !both                        ? ""
                                                  : side == Chart_Side::Intake ? "  in"
                                                                               : "  ex";
                    layout_.labels.push_back(Label(test, side, word));
                }
            }
        }
        for (const Gain_Curve& gain : layout_.gains) {
            layout_.gain_labels.push_back(Label(gain.test, layout_.gain_side, ""));
        }
        if (!layout_.gains.empty()) {
            layout_.gain_labels.push_back(Label(chart_.request.baseline, layout_.gain_side, ""));
        }
    }

    [[nodiscard]] End_Label Label(std::size_t test, Chart_Side side, std::string_view word) const {
        // As much of a wide chart as names need, but never most of it.
        constexpr double most_share = 0.2;
        constexpr double least_room = 80;
        const double room = std::max(least_room, box_.Width() * most_share) -
                            Figure_Text_Width(word, label_size, true);
        return {.wanted = 0,
                .test = test,
                .side = side,
                .name =
                    Fitted_Name(Numbered_Name(chart_, test), label_size, true, room).append(word),
                .figure = {},
                .place = 0};
    }

    [[nodiscard]] double Widest_Figure() const {
        const Value_Unit& unit = chart_.request.Unit();
        std::vector<std::string> texts{Fixed_Text(high_, unit.decimals),
                                       Fixed_Text(low_, unit.decimals)};
        for (const Gain_Curve& gain : layout_.gains) {
            for (const Lift_Point& point : gain.points) {
                const Chart_Cell cell{.value = {}, .gain = point.value, .percent = point.value};
                texts.push_back(Gain_Text(cell, layout_));
            }
        }
        double width = 0;
        for (const std::string& text : texts) {
            width = std::max(width, Figure_Text_Width(text, label_size, true));
        }
        return width;
    }

    void Place_Frames() {
        double names = 0;
        for (const std::vector<End_Label>* const labels : {&layout_.labels, &layout_.gain_labels}) {
            for (const End_Label& label : *labels) {
                names = std::max(names, Figure_Text_Width(label.name, label_size, true));
            }
        }
        layout_.column.right = box_.right;
        layout_.column.left = box_.right - names - figure_gap - Widest_Figure();
        frames_.right = layout_.column.left - sample_room - leader_room;
        layout_.main.box = frames_;
        if (!layout_.gains.empty()) {
            Figure_Box band = frames_;
            layout_.main.box.bottom -= frames_.Height() * band_share + band_gap;
            band.top = layout_.main.box.bottom + band_gap;
            constexpr int steps = 3;
            double low = 0;
            double high = 0;
            for (const Gain_Curve& gain : layout_.gains) {
                const auto [least, most] = std::ranges::minmax(gain.points, {}, &Lift_Point::value);
                low = std::min(low, least.value);
                high = std::max(high, most.value);
            }
            layout_.band = {
                .box = band, .lifts = layout_.main.lifts, .values = Snug_Scale(low, high, steps)};
        }
    }

    /// The height in a frame at which a line leaves it.
    [[nodiscard]] static double Height_In(const Chart_Frame& frame, std::optional<double> value) {
        return std::clamp(frame.Y(value.value_or(frame.values.low)), frame.box.top,
                          frame.box.bottom);
    }

    void Place_Labels() {
        const double last = layout_.main.lifts.high;
        for (End_Label& label : layout_.labels) {
            const Chart_Curve& own = chart_.tests[label.test].sides[label.side];
            const double end = own.points.back().lift;
            const std::optional<double> value =
                end <= last ? std::optional(own.points.back().value) : own.curve.At(last);
            label.wanted = Height_In(layout_.main, value);
            label.figure = End_Text(value, chart_.request.Unit());
        }
        Spread_In(layout_.main.box, layout_.labels);
        if (!layout_.band) {
            return;
        }
        for (End_Label& label : layout_.gain_labels) {
            const auto gain = std::ranges::find(layout_.gains, label.test, &Gain_Curve::test);
            const bool is_baseline = gain == layout_.gains.end();
            const double value = is_baseline ? 0 : gain->points.back().value;
            label.wanted = Height_In(*layout_.band, value);
            label.figure = is_baseline
                               ? "0"
                               : Gain_Text({.value = {}, .gain = value, .percent = value}, layout_);
        }
        // The room beside the lifts' numbers is free.
        Figure_Box room = layout_.band->box;
        room.top -= band_gap / 2;
        room.bottom += title_room / 2;
        Spread_In(room, layout_.gain_labels);
    }

    /// Letters become smaller only where a low chart has many curves.
    void Spread_In(const Figure_Box& room, std::vector<End_Label>& labels) {
        const double lines = static_cast<double>(labels.size());
        const double line = std::min(label_line, room.Height() / std::max(1.0, lines));
        layout_.column.text_size =
            std::min(layout_.column.text_size, line * label_size / label_line);
        Spread(labels, line, room.top, room.bottom);
    }

    const Chart& chart_;
    Figure_Box box_;
    Figure_Box frames_;
    Chart_Layout layout_;
    double low_ = 0;
    double high_ = 0;
    double last_ = 0;
};

} // namespace

Chart_Part Chart_Layout::Part() const {
    return {.first_lift = main.lifts.low,
            .last_lift = main.lifts.high,
            .low = main.values.low,
            .high = main.values.high};
}

std::optional<double> Chart_Layout::Lift_At(Figure_Point place, double reach) const {
    if (place.x < main.box.left || place.x > main.box.right || place.y < main.box.top ||
        place.y > Lowest().box.bottom) {
        return std::nullopt;
    }
    for (const Chart_Row& row : chart->table) {
        if (std::abs(main.X(row.lift) - place.x) <= reach) {
            return row.lift;
        }
    }
    return main.Lift_At(place.x);
}

Chart_Layout Layout_Of(const Chart& chart, const Chart_Style& style, const Figure_Box& box) {
    return Layout_Maker(chart, style, box).Make();
}

std::vector<double> Fine_Lifts(const Chart_Curve& curve, const Chart_Part& part) {
    constexpr int pieces = 90;
    const double first = std::max(curve.curve.First(), part.first_lift);
    const double last = std::min(curve.curve.Last(), part.last_lift);
    std::vector<double> lifts;
    if (first >= last) {
        return lifts;
    }
    for (int piece = 0; piece <= pieces; ++piece) {
        lifts.push_back(first + (last - first) * piece / pieces);
    }
    for (const Lift_Point& point : curve.points) {
        if (point.lift > first && point.lift < last) {
            lifts.push_back(point.lift);
        }
    }
    std::ranges::sort(lifts);
    return lifts;
}

std::string Numbered_Name(const Chart& chart, std::size_t test) {
    return Bare_Text(static_cast<double>(test + 1), 0) + " " + chart.tests[test].name;
}

Chart_Side Leading_Side(const Chart& chart) {
    const bool intake =
        chart.request.shows.intake && std::ranges::any_of(chart.tests, [](const Chart_Entry& test) {
            return !test.sides.intake.points.empty();
        });
    return intake || !chart.request.shows.exhaust ? Chart_Side::Intake : Chart_Side::Exhaust;
}

std::string With_Unit(std::string_view title, std::string_view unit) {
    return std::string(title) + (unit.empty() ? "" : "  [" + Printed_Unit(unit) + "]");
}

std::string End_Text(std::optional<double> value, const Value_Unit& unit) {
    constexpr double large = 100;
    const bool drops_one = unit.decimals == 1 && value && *value >= large;
    return Fixed_Text(value, drops_one ? 0 : unit.decimals);
}

std::string Gain_Text(const Chart_Cell& cell, const Chart_Layout& layout) {
    if (layout.style.gain_in_percent) {
        const std::string text = Signed_Text(cell.percent, 1);
        return text.empty() ? text : text + " %";
    }
    return Signed_Text(cell.gain, layout.chart->request.Unit().decimals);
}

} // namespace kestrum
