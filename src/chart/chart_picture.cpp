#include "chart/chart_picture.h"

#include "chart/figure_text.h"
#include "drawing/figure_clip.h"

#include <algorithm>

namespace kestrum {

namespace {

double Line_Width(Chart_Side side) {
    constexpr double thick = 1.9;
    constexpr double thin = 1.05;
    return side == Chart_Side::Intake ? thick : thin;
}

/// One drawing of a chart.
class Chart_Drawing {
public:
    Chart_Drawing(Figure& figure, const Chart_Layout& layout)
        : figure_(figure),
          layout_(layout),
          chart_(*layout.chart),
          request_(chart_.request),
          colours_(layout.Colours()) {}

    void Draw_Main() {
        const Chart_Frame& frame = layout_.main;
        frame.Draw_Grid(figure_, colours_);
        frame.Draw_Axes(figure_, colours_,
                        With_Unit(Entry_Of(request_.quantity).title, request_.Unit().name),
                        layout_.band ? "" : Lift_Title());
        Draw_Markers();
        // The baseline lies on top, for all is read against it.
        for (std::size_t place = chart_.tests.size(); place-- > 0;) {
            if (place != request_.baseline) {
                Draw_Test(place);
            }
        }
        if (!chart_.tests.empty()) {
            Draw_Test(request_.baseline);
        }
        Draw_Labels(frame, layout_.labels);
        if (layout_.labels.empty()) {
            Say_Why_Empty();
        }
    }

    void Draw_Band() {
        if (!layout_.band) {
            return;
        }
        const Chart_Frame& frame = *layout_.band;
        const bool intake = layout_.gain_side == Chart_Side::Intake;
        frame.Draw_Grid(figure_, colours_);
        Draw_Gain_Areas(frame);
        frame.Draw_Axes(figure_, colours_,
                        With_Unit(intake ? "Intake gain" : "Exhaust gain",
                                  layout_.style.gain_in_percent ? "%" : request_.Unit().name),
                        Lift_Title());
        figure_.Line({frame.box.left, frame.Y(0)}, {frame.box.right, frame.Y(0)}, colours_.quiet,
                     0.8);
        for (const Gain_Curve& gain : layout_.gains) {
            constexpr double width = 1.6;
            Draw_Line(frame, gain.points, gain.test, width);
        }
        Draw_Labels(frame, layout_.gain_labels);
    }

private:
    void Say_Why_Empty() {
        constexpr double size = 10;
        const Figure_Box& box = layout_.main.box;
        figure_.Add(Figure_Text{.x = (box.left + box.right) / 2,
                                .y = (box.top + box.bottom) / 2,
                                .text = "None of the tests says anything about this",
                                .size = size,
                                .colour = colours_.quiet,
                                .anchor = Text_Anchor::Centre});
    }

    [[nodiscard]] std::string Lift_Title() const {
        return With_Unit("Valve lift", Entry_Of(request_.lift_unit).name);
    }

    struct Marker {
        double lift;
        std::string label;
    };

    [[nodiscard]] std::vector<Marker> Markers() const {
        constexpr double quarter = 0.25;
        std::vector<Marker> markers;
        const bool both = request_.shows.intake && request_.shows.exhaust;
        for (const Chart_Side side : chart_sides) {
            if (!request_.shows[side] || chart_.tests.empty()) {
                continue;
            }
            if (const auto diameter = chart_.Baseline().valve_diameter[side]) {
                const std::string_view word = !both                        ? ""
                                              : side == Chart_Side::Intake ? " in"
                                                                           : " ex";
                markers.push_back({*diameter * quarter, std::string("L/D 0.25").append(word)});
            }
        }
        if (request_.cam_lift) {
            markers.push_back(
                {*request_.cam_lift, "cam " + Lift_Text(*request_.cam_lift, request_.lift_unit)});
        }
        const Chart_Part part = layout_.Part();
        std::erase_if(markers, [&](const Marker& marker) {
            return marker.lift < part.first_lift || marker.lift > part.last_lift;
        });
        std::ranges::sort(markers, {}, &Marker::lift);
        return markers;
    }

    /// Dotted lines, their labels above the frame and beside each other.
    void Draw_Markers() {
        constexpr double size = 7;
        constexpr double gap = 4;
        const Figure_Box& box = layout_.main.box;
        double free_from = box.left;
        for (const Marker& marker : Markers()) {
            const double x = layout_.main.X(marker.lift);
            figure_.Line({x, box.top}, {x, box.bottom}, colours_.quiet, 0.8, {1, 2.5});
            const double width = Figure_Text_Width(marker.label, size, false);
            const double left = std::max(x - width / 2, free_from);
            figure_.Add(Figure_Text{.x = left,
                                    .y = box.top - gap,
                                    .text = marker.label,
                                    .size = size,
                                    .colour = colours_.quiet});
            free_from = left + width + gap;
        }
    }

    void Draw_Test(std::size_t place) {
        for (const Chart_Side side : chart_sides) {
            const Chart_Curve& own = chart_.tests[place].sides[side];
            const double width = Line_Width(side);
            if (own.curve.Is_There()) {
                std::vector<Lift_Point> points;
                for (const double lift : Fine_Lifts(own, layout_.Part())) {
                    points.push_back({.lift = lift, .value = *own.curve.At(lift)});
                }
                Draw_Line(layout_.main, points, place, width);
            }
            constexpr double mark_radius = 1.9;
            for (const Lift_Point& point : own.points) {
                if (layout_.main.Has(point)) {
                    Draw_Mark(place, layout_.main.Place(point), mark_radius + width / 4,
                              width / 2 + 0.3);
                }
            }
        }
    }

    void Draw_Line(const Chart_Frame& frame, const std::vector<Lift_Point>& points,
                   std::size_t test, double width) {
        std::vector<Figure_Point> line;
        line.reserve(points.size());
        for (const Lift_Point& point : points) {
            line.push_back(frame.Place(point));
        }
        for (std::vector<Figure_Point>& piece : Pieces_In(line, frame.box)) {
            figure_.Add(Figure_Path{.points = std::move(piece),
                                    .stroke = colours_.Curve(test),
                                    .width = width,
                                    .dashes = Dashes_Of(test, width)});
        }
    }

    void Draw_Mark(std::size_t test, Figure_Point centre, double radius, double width) {
        Figure_Path mark = Mark_Of(test, centre, radius);
        mark.stroke = colours_.Curve(test);
        mark.width = width;
        mark.fill = colours_.ground;
        figure_.Add(std::move(mark));
    }

    /// Beside the frame, with a piece of the line and its mark, and a leader where they had to
    /// move.
    void Draw_Labels(const Chart_Frame& frame, const std::vector<End_Label>& labels) {
        constexpr double sample = 26;
        constexpr double gap = 4;
        const double size = layout_.column.text_size;
        for (const End_Label& label : labels) {
            const double width = Line_Width(label.side);
            const double right = layout_.column.left - gap;
            const double left = right - sample;
            figure_.Line({frame.box.right + 1, label.wanted}, {left - 1, label.place},
                         colours_.rule, 0.5);
            figure_.Line({left, label.place}, {right, label.place}, colours_.Curve(label.test),
                         width, Dashes_Of(label.test, width));
            Draw_Mark(label.test, {left + sample / 2, label.place}, 2, 1);
            figure_.Add(Figure_Text{.x = layout_.column.left,
                                    .y = label.place + size * 0.35,
                                    .text = label.name,
                                    .size = size,
                                    .colour = colours_.Curve(label.test),
                                    .bold = label.side == Chart_Side::Intake});
        }
    }

    /// A shade between a gain and nothing; with many tests there would be only shade.
    void Draw_Gain_Areas(const Chart_Frame& frame) {
        constexpr std::size_t most_shades = 3;
        if (layout_.gains.size() > most_shades) {
            return;
        }
        for (const Gain_Curve& gain : layout_.gains) {
            Figure_Path area{.points = {}, .closed = true};
            area.fill = colours_.Curve(gain.test);
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
    const Chart_Layout& layout_;
    const Chart& chart_;
    const Chart_Request& request_;
    const Chart_Colours& colours_;
};

void Draw_Figure(Figure& figure, const Chart_Layout& layout, const End_Label& label,
                 const std::string& text) {
    const double size = layout.column.text_size;
    figure.Add(Figure_Text{.x = layout.column.right,
                           .y = label.place + size * 0.35,
                           .text = text.empty() ? "\xE2\x80\x93" : text,
                           .size = size,
                           .colour = layout.Colours().Curve(label.test),
                           .bold = label.side == Chart_Side::Intake,
                           .anchor = Text_Anchor::Right});
}

} // namespace

void Draw_Curves(Figure& figure, const Chart_Layout& layout) {
    Chart_Drawing drawing(figure, layout);
    drawing.Draw_Main();
    drawing.Draw_Band();
}

void Draw_End_Figures(Figure& figure, const Chart_Layout& layout) {
    for (const std::vector<End_Label>* const labels : {&layout.labels, &layout.gain_labels}) {
        for (const End_Label& label : *labels) {
            Draw_Figure(figure, layout, label, label.figure);
        }
    }
}

void Draw_Chart(Figure& figure, const Chart_Layout& layout) {
    Draw_Curves(figure, layout);
    Draw_End_Figures(figure, layout);
}

namespace {

/// One reading of all curves.
struct Reading_Drawing {
    Figure& figure;
    const Chart_Layout& layout;
    double lift;

    void Draw_Line() const {
        const double x = layout.main.X(lift);
        const Lift_Unit unit = layout.chart->request.lift_unit;
        figure.Line({x, layout.main.box.top}, {x, layout.Lowest().box.bottom}, layout.Colours().ink,
                    0.7);
        constexpr double size = 8.5;
        constexpr double rise = 4;
        figure.Add(Figure_Text{.x = layout.column.right,
                               .y = layout.main.box.top - rise,
                               .text = "at " + Lift_Text(lift, unit) + " " +
                                       std::string(Entry_Of(unit).name),
                               .size = size,
                               .colour = layout.Colours().ink,
                               .bold = true,
                               .anchor = Text_Anchor::Right});
    }

    void Draw_Dot(const Chart_Frame& frame, const End_Label& label,
                  std::optional<double> value) const {
        constexpr std::size_t round = 0;
        constexpr double radius = 2.6;
        if (value && frame.Has({.lift = lift, .value = *value})) {
            Figure_Path dot = Mark_Of(round, frame.Place({.lift = lift, .value = *value}), radius);
            dot.fill = layout.Colours().Curve(label.test);
            figure.Add(std::move(dot));
        }
    }
};

} // namespace

void Draw_Reading(Figure& figure, const Chart_Layout& layout, double lift) {
    const Reading_Drawing reading{.figure = figure, .layout = layout, .lift = lift};
    const Chart& chart = *layout.chart;
    const Chart_Row row = Row_At(chart, lift);
    reading.Draw_Line();
    for (const End_Label& label : layout.labels) {
        const std::optional<double>& value = row.cells[label.side][label.test].value;
        Draw_Figure(figure, layout, label, Fixed_Text(value, chart.request.Unit().decimals));
        reading.Draw_Dot(layout.main, label, value);
    }
    for (const End_Label& label : layout.gain_labels) {
        const Chart_Cell& cell = row.cells[label.side][label.test];
        const bool is_baseline = label.test == chart.request.baseline;
        Draw_Figure(figure, layout, label, is_baseline ? "0" : Gain_Text(cell, layout));
        if (layout.band) {
            reading.Draw_Dot(*layout.band, label,
                             layout.style.gain_in_percent ? cell.percent : cell.gain);
        }
    }
}

} // namespace kestrum
