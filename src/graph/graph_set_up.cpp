#include "graph/graph_set_up.h"

#include "graph/compare_table.h"
#include "graph/graph_drawing.h"
#include "graph/graph_series.h"
#include "graph/graph_state.h"
#include "graph/user_axis.h"

#include <algorithm>
#include <cmath>

namespace kestrum {

namespace {

void Reset_Series(Graph_State& graph) {
    constexpr int curve_tension = 50;
    graph.from_point_count = most_curve_points;
    graph.to_point_count = most_curve_points;
    graph.tension = curve_tension;
    for (Series* const series : {&graph.from_x, &graph.to_x, &graph.from_intake,
                                 &graph.from_exhaust, &graph.to_intake, &graph.to_exhaust}) {
        series->fill(0);
    }
}

void Set_X_Scale(Session& session) {
    Graph_State& graph = Graph_Of(session);
    if (Compare_Screen::Chosen(session.Form50().Option4) != 0) {
        constexpr double nearly_one_step = 0.00999;
        graph.x_high = std::floor((graph.x_high + nearly_one_step) * 100) / 100;
    }
    graph.x_per_unit = ((Real(graph.x_high) - graph.x_low) / session.display.canvas_x_size).Value();
}

void Set_X_Captions(Session& session) {
    const bool metric = session.Main().Is_Metric();
    const auto set = [&](std::string_view text) {
        session.Form60().Label3.Set_Text("<--- " + std::string(text));
        session.Form60().Label9.Set_Text(text);
    };
    switch (Compare_Screen::Chosen(session.Form50().Option4)) {
    case 0:
        return set(metric ? "Valve Lift mm" : "Valve Lift Inches * 1000");
    case 1:
        return set("Intake Valve Lift as L/D");
    default:
        return set("Exhaust Valve Lift as L/D");
    }
}

void Set_Y_Captions(Session& session, const Compare_Type& type) {
    const bool metric = session.Main().Is_Metric();
    const std::string_view axis = metric ? type.metric_axis_text : type.us_axis_text;
    const std::string_view arrow = metric ? type.metric_arrow_text : type.us_arrow_text;
    session.Form60().Label4.Set_Text("<--- " + std::string(arrow.empty() ? axis : arrow));
    session.Form60().Label8.Set_Text(axis);
}

double Next_Ten(double value) {
    return std::floor(value / 10) * 10 + 10;
}

/// The low end of a graph that shows its upper part big.
double Tens_Below(double low, int tens) {
    return std::max((std::floor(low / 10) - tens) * 10, 0.0);
}

void Set_Coefficient_Limits(Graph_State& graph, double usual_low) {
    graph.y_high = (std::floor(graph.y_high * 10) + 2) / 10;
    graph.y_low = usual_low;
    Find_Low_Y(graph);
    if (graph.y_low < usual_low) {
        graph.y_low = std::floor(graph.y_low * 10) / 10;
    }
}

void Set_Y_Limits(Session& session, const Compare_Type& type) {
    Graph_State& graph = Graph_Of(session);
    const bool metric = session.Main().Is_Metric();
    const bool show_big = session.Form50().Check4.Value() == 1;
    switch (type.axis) {
    case Axis_Rule::Tens_Or_One:
        graph.y_high = metric ? std::floor(graph.y_high) + 1 : Next_Ten(graph.y_high);
        graph.y_low = 0;
        break;
    case Axis_Rule::Per_Area:
        graph.y_high = metric ? 2750 : 150;
        graph.y_low = metric ? 900 : 50;
        break;
    case Axis_Rule::Tens:
    case Axis_Rule::Tens_Show_Big:
        graph.y_high = Next_Ten(graph.y_high);
        graph.y_low =
            show_big && type.axis == Axis_Rule::Tens_Show_Big ? Tens_Below(graph.y_low, 1) : 0;
        break;
    case Axis_Rule::Swirl:
        graph.y_high = Next_Ten(graph.y_high);
        if (show_big && graph.y_low > 0) {
            graph.y_low = Tens_Below(graph.y_low, 2);
        }
        break;
    case Axis_Rule::Coefficient:
        Set_Coefficient_Limits(graph, type.intake == "Text111" ? 0.4 : 0.5);
        break;
    case Axis_Rule::Whole:
        graph.y_high = std::floor(graph.y_high) + 1;
        graph.y_low = 0;
        break;
    case Axis_Rule::Percent:
        graph.y_high = graph.y_high > 0 ? std::floor(graph.y_high) + 1 : graph.y_high;
        graph.y_low = std::floor(graph.y_low);
        break;
    }
    Set_Y_Scale(session);
}

/// Types that show no curve through zero.
bool Drops_Zero_Point(const Compare_Type& type) {
    switch (type.axis) {
    case Axis_Rule::Tens_Or_One:
    case Axis_Rule::Tens:
    case Axis_Rule::Whole:
        return false;
    default:
        return true;
    }
}

double Starting_Low(const Compare_Type& type, bool show_big) {
    constexpr double above_all = 99999;
    const bool can_show_big =
        type.axis == Axis_Rule::Tens_Show_Big || type.axis == Axis_Rule::Swirl;
    return can_show_big && show_big ? above_all : 0;
}

} // namespace

void Draw_Fresh_Graph(Session& session) {
    Fill_Compare_Table(session);
    const Compare_Screen& table = session.Form50();
    const Compare_Type& type = Compare_Type_Of(table.Type());
    Graph_State& graph = Graph_Of(session);
    graph.plus_count = 0;
    Reset_Series(graph);
    graph.x_low = 0;
    graph.x_high = 0;
    Read_X(session, true);
    graph.y_low = Starting_Low(type, table.Check4.Value() == 1);
    graph.y_high = 0;
    Set_X_Scale(session);
    Set_X_Captions(session);
    Read_Y(session, type, true);
    Set_Y_Limits(session, type);
    Set_Y_Captions(session, type);
    if (Drops_Zero_Point(type)) {
        Drop_Zero_First_Point(graph);
    }
    Apply_User_Y_Axis(session, type);
    Draw_Graph(session);
    if (type.Is_Percent() && graph.y_low < 0) {
        Draw_Zero_Line(session);
    }
    session.Show(session.Form60());
}

void Draw_Graph_Overlay(Session& session) {
    constexpr int most_overlays = 3;
    Graph_State& graph = Graph_Of(session);
    if (graph.plus_count >= most_overlays) {
        session.Message("You are seeing this Message for one of 2 reasons\r\n\r\n1) You don't do a "
                        "Graph before doing Graph Plus\r\n2) You are trying to do to many Graph "
                        "Plus");
        return;
    }
    Fill_Compare_Table(session);
    const Compare_Type& type = Compare_Type_Of(session.Form50().Type());
    ++graph.plus_count; // before the drawing: a failed overlay counts too
    Reset_Series(graph);
    Read_X(session, false);
    Read_Y(session, type, false);
    if (Drops_Zero_Point(type)) {
        Drop_Zero_First_Point(graph);
    }
    Draw_Graph(session);
    session.Show(session.Form60());
}

} // namespace kestrum
