#include "chart/chart.h"

#include "base/run_time_error.h"
#include "platform/file_store.h"

#include <algorithm>

namespace kestrum {

namespace {

bool Is_Below(double a, double b) {
    return a < b && !Is_Same_Lift(a, b);
}

const Side_Figures& Figures_On(const Test_Figures& test, Chart_Side side) {
    return side == Chart_Side::Intake ? test.intake : test.exhaust;
}

Chart_Curve Curve_Of(const Test_Figures& test, Chart_Side side, const Chart_Request& request) {
    const Chart_Quantity_Entry& entry = Entry_Of(request.quantity);
    const double factor = Pressure_Factor(request.quantity, test.Stated_At(), request.pressure) *
                          request.Unit().factor;
    const double lift_factor = Entry_Of(request.lift_unit).in_inch;
    Chart_Curve result;
    for (const Lift_Point& point :
         Figures_On(test, side).points.at(static_cast<std::size_t>(request.quantity))) {
        result.points.push_back({.lift = point.lift * lift_factor, .value = point.value * factor});
        if (!result.peak || result.points.back().value > result.peak->value) {
            result.peak = result.points.back();
        }
    }
    std::vector<Lift_Point> knots = result.points;
    if (entry.begins_at_zero) {
        knots.insert(knots.begin(), Lift_Point{});
    }
    result.curve = Monotone_Curve(std::move(knots));
    if (request.cam_lift) {
        result.event_mean = result.curve.Event_Mean(*request.cam_lift);
    }
    return result;
}

Chart_Entry Entry_For(const Chart_Test& test, const Chart_Request& request) {
    Chart_Entry entry{.file = test.file,
                      .name = test.figures.name,
                      .pressure = test.figures.Stated_At(),
                      .sides = {},
                      .ratio = {},
                      .valve_diameter = {},
                      .comment = test.figures.comment};
    if (entry.name.empty()) {
        entry.name = Bare_Name(test.file);
    }
    for (const Chart_Side side : chart_sides) {
        if (request.shows[side]) {
            entry.sides[side] = Curve_Of(test.figures, side, request);
        }
        if (const auto diameter = Figures_On(test.figures, side).valve_diameter) {
            entry.valve_diameter[side] = *diameter * Entry_Of(request.lift_unit).in_inch;
        }
    }
    return entry;
}

/// Where all tests that have a curve have one.
std::optional<Mean_Range> Common_Range(const Chart& chart, Chart_Side side) {
    std::optional<Mean_Range> range;
    for (const Chart_Entry& test : chart.tests) {
        const Monotone_Curve& curve = test.sides[side].curve;
        if (!curve.Is_There()) {
            continue;
        }
        if (!range) {
            range = {.from = curve.First(), .to = curve.Last()};
        }
        range->from = std::max(range->from, curve.First());
        range->to = std::min(range->to, curve.Last());
    }
    if (range && chart.request.mean_to) {
        range->to = *chart.request.mean_to;
    }
    return range;
}

void Take_Means(Chart& chart) {
    for (const Chart_Side side : chart_sides) {
        const std::optional<Mean_Range> range = Common_Range(chart, side);
        chart.mean_range[side] = range;
        for (Chart_Entry& test : chart.tests) {
            Chart_Curve& curve = test.sides[side];
            if (range) {
                curve.mean = curve.curve.Mean(range->from, range->to);
            }
        }
    }
    for (Chart_Entry& test : chart.tests) {
        const std::optional<double> intake = test.sides.intake.mean;
        const std::optional<double> exhaust = test.sides.exhaust.mean;
        if (chart.request.quantity == Chart_Quantity::Flow && intake && exhaust && *intake != 0) {
            test.ratio = *exhaust / *intake;
        }
    }
}

std::vector<double> Baseline_Lifts(const Chart& chart) {
    std::vector<double> lifts;
    for (const Chart_Side side : chart_sides) {
        for (const Lift_Point& point : chart.Baseline().sides[side].points) {
            lifts.push_back(point.lift);
        }
    }
    std::ranges::sort(lifts);
    lifts.erase(std::unique(lifts.begin(), lifts.end(), Is_Same_Lift), lifts.end());
    return lifts;
}

std::vector<double> Stepped_Lifts(const Chart& chart, double step) {
    double last = 0;
    for (const Chart_Entry& test : chart.tests) {
        for (const Chart_Side side : chart_sides) {
            const Monotone_Curve& curve = test.sides[side].curve;
            last = curve.Is_There() ? std::max(last, curve.Last()) : last;
        }
    }
    constexpr double most_rows = 100000;
    if (last / step > most_rows) {
        Fail(error::overflow);
    }
    std::vector<double> lifts;
    for (int count = 1; !Is_Below(last, count * step); ++count) {
        lifts.push_back(count * step);
    }
    return lifts;
}

} // namespace

Chart_Cell Compared(std::optional<double> value, std::optional<double> baseline) {
    constexpr double whole = 100;
    Chart_Cell cell{.value = value, .gain = {}, .percent = {}};
    if (value && baseline && *baseline != 0) {
        cell.gain = *value - *baseline;
        cell.percent = *cell.gain / *baseline * whole;
    }
    return cell;
}

Chart_Row Row_At(const Chart& chart, double lift) {
    Chart_Row row{.lift = lift, .cells = {}};
    for (const Chart_Side side : chart_sides) {
        const auto baseline = chart.Baseline().sides[side].curve.At(lift);
        for (const Chart_Entry& test : chart.tests) {
            const bool is_baseline = &test == &chart.Baseline();
            row.cells[side].push_back(
                Compared(test.sides[side].curve.At(lift), is_baseline ? std::nullopt : baseline));
        }
    }
    return row;
}

Chart Curves_Of(std::span<const Chart_Test> tests, const Chart_Request& request) {
    Chart chart{.request = request, .tests = {}, .table = {}, .mean_range = {}};
    for (const Chart_Test& test : tests) {
        chart.tests.push_back(Entry_For(test, request));
    }
    Take_Means(chart);
    return chart;
}

Chart Chart_Of(std::span<const Chart_Test> tests, const Chart_Request& request) {
    Chart chart = Curves_Of(tests, request);
    if (chart.tests.empty()) {
        return chart;
    }
    const std::vector<double> lifts =
        request.step ? Stepped_Lifts(chart, *request.step) : Baseline_Lifts(chart);
    for (const double lift : lifts) {
        chart.table.push_back(Row_At(chart, lift));
    }
    return chart;
}

} // namespace kestrum
