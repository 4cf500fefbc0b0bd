#include "chart/chart_picture.h"

#include "chart/chart_frame.h"
#include "chart/figure_text.h"

#include <algorithm>
#include <cmath>

namespace kestrum {

namespace {

constexpr double axis_room = 44;   // left of the frames
constexpr double label_room = 150; // right of them
constexpr double marker_room = 14; // above
constexpr double title_room = 30;  // below
constexpr double band_gap = 16;
constexpr double band_share = 0.25; // of the height of both frames
constexpr double label_size = 7.5;
constexpr double label_line = 9.5;

double Line_Width(Chart_Side side) {
    constexpr double thick = 1.9;
    constexpr double thin = 1.05;
    return side == Chart_Side::Intake ? thick : thin;
}

std::string With_Unit(std::string_view title, std::string_view unit) {
    return std::string(title) + (unit.empty() ? "" : "  [" + std::string(unit) + "]");
}

/// Lifts close enough together for a line without corners, those of the points among them.
std::vector<double> Fine_Lifts(const Monotone_Curve& curve, const std::vector<Lift_Point>& points) {
    constexpr int pieces = 90;
    std::vector<double> lifts;
    for (int piece = 0; piece <= pieces; ++piece) {
        lifts.push_back(curve.First() + (curve.Last() - curve.First()) * piece / pieces);
    }
    for (const Lift_Point& point : points) {
        lifts.push_back(point.lift);
    }
    std::ranges::sort(lifts);
    return lifts;
}

/// One drawing of a chart.
class Chart_Drawing {
public:
    Chart_Drawing(Figure& figure, const Figure_Box& box, const Chart& chart,
                  const Chart_Colours& colours)
        : figure_(figure), chart_(chart), request_(chart.request), colours_(colours) {
        frames_ = {.left = box.left + axis_room,
                   .top = box.top + marker_room,
                   .right = box.right - label_room,
                   .bottom = box.bottom - title_room};
        Find_Ranges();
    }

    void Draw() {
        const bool has_band = !gains_.empty();
        Figure_Box main = frames_;
        Figure_Box band = frames_;
        if (has_band) {
            main.bottom -= frames_.Height() * band_share + band_gap;
            band.top = main.bottom + band_gap;
        }
        Draw_Main(main, has_band ? "" : Lift_Title());
        if (has_band) {
            Draw_Band(band);
        }
    }

private:
    struct Gain_Curve {
        std::size_t test;
        std::vector<Lift_Point> points;
    };

    [[nodiscard]] std::string Lift_Title() const {
        return With_Unit("Valve lift", request_.Lift_Unit());
    }

    void Find_Ranges() {
        bool found = false;
        for (const Chart_Entry& test : chart_.tests) {
            for (const Chart_Side side : chart_sides) {
                const Monotone_Curve& curve = test.sides[side].curve;
                for (const Lift_Point& point : test.sides[side].points) {
                    low_ = found ? std::min(low_, point.value) : point.value;
                    high_ = found ? std::max(high_, point.value) : point.value;
                    last_ = std::max(last_, point.lift);
                    found = true;
                }
                any_curve_ = any_curve_ || curve.Is_There();
            }
        }
        // From nothing on, unless all values lie far above it.
        constexpr double far_above = 0.6;
        low_ = Entry_Of(request_.quantity).begins_at_zero || low_ < high_ * far_above
                   ? std::min(0.0, low_)
                   : low_;
        Find_Gains();
    }

    void Find_Gains() {
        if (chart_.tests.empty()) {
            return;
        }
        const Chart_Side side = Leading_Side(chart_);
        const Chart_Curve& baseline = chart_.tests.front().sides[side];
        for (std::size_t test = 1; test < chart_.tests.size(); ++test) {
            const Chart_Curve& own = chart_.tests[test].sides[side];
            if (!baseline.curve.Is_There() || !own.curve.Is_There()) {
                continue;
            }
            Gain_Curve gain{.test = test, .points = {}};
            for (const double lift : Fine_Lifts(own.curve, own.points)) {
                if (const auto base = baseline.curve.At(lift)) {
                    gain.points.push_back({.lift = lift, .value = *own.curve.At(lift) - *base});
                    gain_low_ = std::min(gain_low_, gain.points.back().value);
                    gain_high_ = std::max(gain_high_, gain.points.back().value);
                }
            }
            if (gain.points.size() > 1) {
                gains_.push_back(std::move(gain));
            }
        }
    }

    [[nodiscard]] Axis_Scale Lift_Scale() const {
        constexpr int steps = 6;
        return Round_Scale(0, last_, steps);
    }

    void Draw_Main(const Figure_Box& box, const std::string& lift_title) {
        constexpr double points_in_step = 36;
        const int steps = std::max(2, static_cast<int>(box.Height() / points_in_step));
        const Chart_Frame frame(figure_, box, Lift_Scale(), Round_Scale(low_, high_, steps),
                                colours_);
        frame.Draw_Grid();
        frame.Draw_Axes(With_Unit(Entry_Of(request_.quantity).title, request_.Unit()), lift_title);
        Draw_Markers(frame);
        std::vector<End_Label> labels;
        // The baseline lies on top, for all is read against it.
        for (std::size_t place = chart_.tests.size(); place-- > 0;) {
            for (const Chart_Side side : chart_sides) {
                Draw_Curve(frame, place, side, labels);
            }
        }
        Draw_Labels(frame, labels);
    }

    void Draw_Markers(const Chart_Frame& frame) const {
        constexpr double quarter = 0.25;

        struct Marker {
            std::optional<double> lift;
            std::string label;
        };

        const auto diameter = chart_.tests.empty()
                                  ? std::nullopt
                                  : chart_.tests.front().valve_diameter[Leading_Side(chart_)];
        std::array markers{
            Marker{diameter ? std::optional(*diameter * quarter) : std::nullopt, "L/D 0.25"},
            Marker{request_.cam_lift, "cam lift"}};
        std::ranges::sort(markers, {}, &Marker::lift);
        // Two labels hold away from each other.
        const bool has_both = markers.front().lift.has_value();
        for (const Marker& marker : markers) {
            if (marker.lift) {
                frame.Draw_Marker(*marker.lift, marker.label,
                                  !has_both                     ? Text_Anchor::Centre
                                  : &marker == &markers.front() ? Text_Anchor::Right
                                                                : Text_Anchor::Left);
            }
        }
    }

    void Draw_Curve(const Chart_Frame& frame, std::size_t place, Chart_Side side,
                    std::vector<End_Label>& labels) {
        const Chart_Curve& own = chart_.tests[place].sides[side];
        if (own.points.empty()) {
            return;
        }
        const int colour = Look_Of_Curve(place).colour;
        const double width = Line_Width(side);
        if (own.curve.Is_There()) {
            Figure_Path path{
                .points = {}, .stroke = colour, .width = width, .dashes = Dashes_Of(place, width)};
            for (const double lift : Fine_Lifts(own.curve, own.points)) {
                path.points.push_back(frame.Place({.lift = lift, .value = *own.curve.At(lift)}));
            }
            figure_.Add(std::move(path));
        }
        constexpr double mark_radius = 1.9;
        for (const Lift_Point& point : own.points) {
            Figure_Path mark = Mark_Of(place, frame.Place(point), mark_radius + width / 4);
            mark.stroke = colour;
            mark.width = width / 2 + 0.3;
            mark.fill = colours_.ground;
            figure_.Add(std::move(mark));
        }
        labels.push_back({.wanted = frame.Y(own.points.back().value),
                          .text = Label_Text(place, side),
                          .test = place,
                          .bold = side == Chart_Side::Intake,
                          .place = 0});
    }

    [[nodiscard]] std::string Label_Text(std::size_t place, Chart_Side side) const {
        const Chart_Entry& test = chart_.tests[place];
        const bool both = request_.shows.intake && request_.shows.exhaust;
        const bool bold = side == Chart_Side::Intake;
        std::string figure =
            "  " + Fixed_Text(test.sides[side].points.back().value,
                              std::max(0, request_.Decimals() - (request_.metric ? 0 : 1)));
        if (both) {
            figure = (bold ? "  in" : "  ex") + figure;
        }
        constexpr double sample_room = 24;
        const double room = label_room - sample_room - Figure_Text_Width(figure, label_size, bold);
        return Fitted_Name(Numbered_Name(chart_, place), label_size, bold, room) + figure;
    }

    /// Beside the frame, with a piece of the line and its mark, and a leader where they had to
    /// move.
    void Draw_Labels(const Chart_Frame& frame, std::vector<End_Label>& labels) {
        const Figure_Box& box = frame.Box();
        constexpr double leader = 8;
        constexpr double sample = 12;
        constexpr double gap = 4;
        constexpr double drop = 2.6;
        Spread(labels, label_line, box.top, box.bottom);
        for (const End_Label& label : labels) {
            const int colour = Look_Of_Curve(label.test).colour;
            const double width = Line_Width(label.bold ? Chart_Side::Intake : Chart_Side::Exhaust);
            const double left = box.right + leader;
            figure_.Line({box.right + 1, label.wanted}, {left - 1, label.place}, colours_.rule,
                         0.5);
            figure_.Line({left, label.place}, {left + sample, label.place}, colour, width,
                         Dashes_Of(label.test, width));
            Figure_Path mark = Mark_Of(label.test, {left + sample / 2, label.place}, 2);
            mark.stroke = colour;
            mark.fill = colours_.ground;
            figure_.Add(std::move(mark));
            figure_.Add(Figure_Text{.x = left + sample + gap,
                                    .y = label.place + drop,
                                    .text = label.text,
                                    .size = label_size,
                                    .colour = colour,
                                    .bold = label.bold});
        }
    }

    void Draw_Band(const Figure_Box& box) {
        constexpr int steps = 3;
        const Chart_Frame frame(figure_, box, Lift_Scale(),
                                Round_Scale(gain_low_, gain_high_, steps), colours_);
        const bool intake = Leading_Side(chart_) == Chart_Side::Intake;
        frame.Draw_Grid();
        Draw_Gain_Areas(frame);
        frame.Draw_Axes(With_Unit(intake ? "Intake gain" : "Exhaust gain", request_.Unit()),
                        Lift_Title());
        figure_.Line({box.left, frame.Y(0)}, {box.right, frame.Y(0)}, colours_.quiet, 0.8);
        std::vector<End_Label> labels;
        for (const Gain_Curve& gain : gains_) {
            constexpr double width = 1.6;
            Figure_Path path{.points = {},
                             .stroke = Look_Of_Curve(gain.test).colour,
                             .width = width,
                             .dashes = Dashes_Of(gain.test, width)};
            for (const Lift_Point& point : gain.points) {
                path.points.push_back(frame.Place(point));
            }
            figure_.Add(std::move(path));
            labels.push_back(
                {.wanted = frame.Y(gain.points.back().value),
                 .text = Fitted_Name(Numbered_Name(chart_, gain.test), label_size, true, 84) +
                         "  " + Signed_Text(gain.points.back().value, request_.Decimals()),
                 .test = gain.test,
                 .bold = true,
                 .place = 0});
        }
        Draw_Labels(frame, labels);
    }

    /// A shade between a gain and nothing; with many tests there would be only shade.
    void Draw_Gain_Areas(const Chart_Frame& frame) {
        constexpr std::size_t most_shades = 3;
        if (gains_.size() > most_shades) {
            return;
        }
        for (const Gain_Curve& gain : gains_) {
            Figure_Path area{.points = {}, .closed = true};
            area.fill = Look_Of_Curve(gain.test).colour;
            area.opacity = 0.08;
            area.points.push_back({frame.X(gain.points.front().lift), frame.Y(0)});
            for (const Lift_Point& point : gain.points) {
                area.points.push_back(frame.Place(point));
            }
            area.points.push_back({frame.X(gain.points.back().lift), frame.Y(0)});
            figure_.Add(std::move(area));
        }
    }

    Figure& figure_;
    const Chart& chart_;
    const Chart_Request& request_;
    const Chart_Colours& colours_;
    Figure_Box frames_;
    double low_ = 0;
    double high_ = 0;
    double last_ = 0;
    double gain_low_ = 0;
    double gain_high_ = 0;
    bool any_curve_ = false;
    std::vector<Gain_Curve> gains_;
};

} // namespace

void Draw_Chart(Figure& figure, const Figure_Box& box, const Chart& chart,
                const Chart_Colours& colours) {
    Chart_Drawing(figure, box, chart, colours).Draw();
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

} // namespace kestrum
