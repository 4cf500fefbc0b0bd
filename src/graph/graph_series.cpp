#include "graph/graph_series.h"

#include "graph/graph_state.h"
#include "graph/test_columns.h"

#include <algorithm>

namespace kestrum {

namespace {

/// Whether a row moves the index of the series on.
bool Counts(const Control& x, int row) {
    return row == zero_lift_row || x.Text() != "0";
}

void Read_X_Column(Session& session, const Control_Array& column, Series& x, int& count,
                   bool sets_limit) {
    count = 0;
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        const double value = session.numbers(column(row)).Value();
        x.at(static_cast<std::size_t>(count)) = value;
        if (sets_limit) {
            Graph_Of(session).x_high = std::max(Graph_Of(session).x_high, value);
        }
        if (Counts(column(row), row)) {
            ++count;
        }
    }
}

/// Which limits a column moves.
struct Limits_Moved {
    bool high = false;
    bool low = false;
};

void Read_Y_Column(Session& session, const Control_Array& x, const Control_Array& column,
                   Series& series, Limits_Moved moved) {
    Graph_State& graph = Graph_Of(session);
    std::size_t index = 0;
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        const Control& cell = column(row);
        const double value = cell.Text().empty() ? 0 : session.numbers(cell).Value();
        series.at(index) = value;
        if (x(row).Text() != "0" && !cell.Text().empty()) {
            graph.y_high = moved.high ? std::max(graph.y_high, value) : graph.y_high;
            graph.y_low = moved.low ? std::min(graph.y_low, value) : graph.y_low;
        }
        if (Counts(x(row), row)) {
            ++index;
        }
    }
}

void Drop_First(Series& series, int count) {
    std::copy(series.begin() + 1, series.begin() + std::max(count, 1), series.begin());
}

} // namespace

Shown_Sides Sides_Shown(const Compare_Screen& table) {
    const int x_column = Compare_Screen::Chosen(table.Option4);
    return {.intake = x_column != 2, .exhaust = x_column != 1};
}

void Read_X(Session& session, bool sets_limit) {
    Graph_State& graph = Graph_Of(session);
    const Compare_Screen& table = session.Form50();
    Read_X_Column(session, table.Text101, graph.from_x, graph.from_point_count, sets_limit);
    Read_X_Column(session, table.Text106, graph.to_x, graph.to_point_count, sets_limit);
}

void Read_Y(Session& session, const Compare_Type& type, bool sets_limits) {
    Graph_State& graph = Graph_Of(session);
    const Test_Columns from = From_Columns(session);
    const Test_Columns to = To_Columns(session);
    const Shown_Sides shown = Sides_Shown(session.Form50());
    const bool show_big = session.Form50().Check4.Value() == 1;
    const bool low_by_intake = type.Is_Percent() || type.axis == Axis_Rule::Swirl ||
                               (type.axis == Axis_Rule::Tens_Show_Big && show_big);
    const Limits_Moved by_intake{.high = sets_limits && shown.intake,
                                 .low = sets_limits && shown.intake && low_by_intake};
    const Limits_Moved by_exhaust{.high = sets_limits && shown.exhaust,
                                  .low = sets_limits && shown.exhaust && type.Is_Percent()};
    const bool derived = type.Graphs_Derived();
    const auto read = [&](const Test_Columns& test, const Control_Array& values,
                          const Control_Array& derivatives, Series& series, Limits_Moved moved) {
        Read_Y_Column(session, test.x, derived ? derivatives : values, series, moved);
    };
    read(from, from.intake, from.derived_intake, graph.from_intake, by_intake);
    read(from, from.exhaust, from.derived_exhaust, graph.from_exhaust, by_exhaust);
    read(to, to.intake, to.derived_intake, graph.to_intake, by_intake);
    read(to, to.exhaust, to.derived_exhaust, graph.to_exhaust, by_exhaust);
}

void Drop_Zero_First_Point(Graph_State& graph) {
    if (graph.from_intake[0] == 0) {
        Drop_First(graph.from_x, graph.from_point_count);
        Drop_First(graph.from_intake, graph.from_point_count);
        Drop_First(graph.from_exhaust, graph.from_point_count);
        --graph.from_point_count;
    }
    if (graph.to_exhaust[0] == 0) {
        Drop_First(graph.to_x, graph.to_point_count);
        Drop_First(graph.to_intake, graph.to_point_count);
        Drop_First(graph.to_exhaust, graph.to_point_count);
        --graph.to_point_count;
    }
}

void Find_Low_Y(Graph_State& graph) {
    constexpr double smallest = 0.01;
    const int count = std::max(graph.from_point_count, graph.to_point_count);
    for (const Series* const series :
         {&graph.from_intake, &graph.from_exhaust, &graph.to_intake, &graph.to_exhaust}) {
        for (int index = 0; index < count; ++index) {
            const double value = series->at(static_cast<std::size_t>(index));
            if (value > smallest && value < graph.y_low) {
                graph.y_low = value;
            }
        }
    }
}

} // namespace kestrum
