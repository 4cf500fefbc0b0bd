#include "output/graph_mouse.h"

#include "graph/graph_canvas.h"
#include "graph/graph_state.h"

namespace kestrum {

namespace {

void Show_Values(Session& session, const Curve_Point& place) {
    const Graph_State& graph = Graph_Of(session);
    const Graph_Screen& screen = session.Form60();
    if (session.display.canvas_y_size > 0) {
        screen.Label18.Set_Text(session.numbers.Fmt_Eight_Wide(
            graph.y_high - place.y / session.display.canvas_y_size * (graph.y_high - graph.y_low)));
    }
    if (session.display.canvas_x_size > 0) {
        screen.Label19.Set_Text(session.numbers.Fmt_Eight_Wide(
            place.x / session.display.canvas_x_size * (graph.x_high - graph.x_low) + graph.x_low));
    }
}

/// A line of the user's from where the pen stands. It lands in the picture and is kept nowhere
/// else.
void Draw_To(Session& session, const Curve_Point& place) {
    Graph_State& graph = Graph_Of(session);
    graph.saved_draw_width = graph.draw_width;
    graph.canvas.Line_By_Hand(graph.pen_at.x, graph.pen_at.y, place.x, place.y,
                              Swapped_Colour(session.settings.draw_line_color),
                              session.settings.draw_line_width);
    graph.pen_at = place;
    session.Form60().Picture1.Repaint();
}

} // namespace

void Mouse_On_Canvas(Session& session, Mouse_Action action, const Curve_Point& place) {
    Graph_State& graph = Graph_Of(session);
    switch (action) {
    case Mouse_Action::Down:
        if (session.Form60().Check1.Value() != 0) {
            graph.pen_at = place;
            Draw_To(session, place);
            graph.drawing_now = true;
        }
        break;
    case Mouse_Action::Move:
        if (graph.drawing_now) {
            Draw_To(session, place);
        } else {
            Show_Values(session, place);
        }
        break;
    case Mouse_Action::Up:
        graph.drawing_now = false;
        break;
    }
}

void Move_Logo(Session& session, Mouse_Action action, const Position& place) {
    Graph_State& graph = Graph_Of(session);
    if (action == Mouse_Action::Move && graph.logo_moving) {
        session.Form60().Picture2.Move_To(place);
        session.Form60().Picture1.Repaint(); // the logo lies over it
    }
    if (action != Mouse_Action::Move) {
        graph.logo_moving = action == Mouse_Action::Down;
    }
}

} // namespace kestrum
