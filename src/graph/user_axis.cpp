#include "graph/user_axis.h"

#include "graph/graph_state.h"

namespace kestrum {

namespace {

/// "Your User Supplied High Y_Axis of 5 is Lower Than ...": whether the user wants it all the same.
bool User_Insists(Session& session, std::string_view end, const Control& field,
                  std::string_view compared, double calculated) {
    const std::string text =
        "Your User Supplied " + std::string(end) + " Y_Axis of " + field.Text() + " is " +
        std::string(compared) + " Than\r\nthe Calculated Y_Axis of " +
        session.numbers.Fmt_Up_To_Six(calculated) +
        "\r\n\r\nDo you still want to use Your Y_Axis " + std::string(end) + " Value?";
    return session.Message(Box{.text = text, .title = {}, .buttons = Box_Buttons::Yes_No}) ==
           Box_Answer::Yes;
}

void Apply_High(Session& session, const Compare_Type& type, Real value) {
    Graph_State& graph = Graph_Of(session);
    if (!type.Is_Percent() && value <= 0) {
        session.Message("For this type of Graph the User Supplied Y_Axis High Value\r\nMUST BE "
                        "GREATER THAN ZERO.\r\n\r\nUser Y_Axis High Value ignored.");
    } else if (!(value < graph.y_high) ||
               User_Insists(session, "High", session.Form50().Text2, "Lower", graph.y_high)) {
        graph.y_high = value.Value();
    }
    Set_Y_Scale(session);
}

void Apply_Low(Session& session, Real value) {
    Graph_State& graph = Graph_Of(session);
    const Numeric_Text& numbers = session.numbers;
    if (value <= graph.y_low ||
        User_Insists(session, "Low", session.Form50().Text1, "Higher", graph.y_low)) {
        graph.y_low = value.Value();
    }
    if (graph.y_low >= graph.y_high) {
        constexpr double span = 10;
        session.Message("Low Y_Axis of " + numbers.Fmt_Up_To_Six(graph.y_low) +
                        " is Equal or Higher Than High Y_Axis of " +
                        numbers.Fmt_Up_To_Six(graph.y_high) +
                        "\r\n\r\nLow Y_Axis is reset to High Y_Axis - 10");
        graph.y_low = graph.y_high - span;
    }
    Set_Y_Scale(session);
}

} // namespace

std::optional<Real> User_Limit(Session& session, const Control& field) {
    if (field.Text() == "-") {
        return std::nullopt;
    }
    try {
        return session.numbers.Read_Either_Mark(field);
    } catch (const Run_Time_Error&) {
        return std::nullopt;
    }
}

void Set_Y_Scale(Session& session) {
    Graph_State& graph = Graph_Of(session);
    graph.y_per_unit = ((Real(graph.y_high) - graph.y_low) / session.display.canvas_y_size).Value();
}

void Apply_User_Y_Axis(Session& session, const Compare_Type& type) {
    if (const auto high = User_Limit(session, session.Form50().Text2)) {
        Apply_High(session, type, *high);
    }
    const auto low = User_Limit(session, session.Form50().Text1);
    if (low && type.Is_Percent()) {
        Apply_Low(session, *low);
    }
}

} // namespace kestrum
