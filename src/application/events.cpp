#include "application/events.h"

#include "application/commands.h"
#include "application/start_up.h"
#include "core/field_handlers.h"
#include "graph/graph_state.h"
#include "output/text_report.h"
#include "presentation/menu_marks.h"

#include <algorithm>

namespace kestrum {

namespace {

void Set_Option(Control& option) {
    for (Control& other : option.Owner().Controls()) {
        if (other.Entry().array == option.Entry().array) {
            other.Set_Value(&other == &option ? 1 : 0);
        }
    }
}

void Run_Routine(Session& session, Control& control) {
    if (const Routine routine = Routine_Of(control)) {
        routine(session, control);
    }
}

bool Reads_Above(const Numeric_Text& numbers, const Control& field, Real limit) {
    try {
        return numbers(field) > limit;
    } catch (const Run_Time_Error&) {
        return false; // a text that is no number passes
    }
}

/// These tests show their box first and return the focus then.
void Refuse_With_Box(Session& session, Control& field, std::string_view message) {
    session.Message(message);
    session.windows.Focus(field);
}

void Check_Limit(Session& session, Control& field, Real limit, std::string_view message) {
    if (Reads_Above(session.numbers, field, limit)) {
        Refuse_With_Box(session, field, message);
    }
}

/// Valve counts are compared as texts: "10" passes, "5" does not.
void Check_Valve_Count(Session& session, Control& field, std::string_view message) {
    if (field.Text() > "4" || field.Text() < "1") {
        Refuse_With_Box(session, field, message);
    }
}

/// One who types .100 means a hundred thousandths.
void Tell_Thousandths(Session& session, const Control& lift) {
    constexpr double thousand = 1000;
    try {
        const Real inches = session.numbers(lift);
        if (!session.Main().Is_Metric() && inches > 0 && inches < 1) {
            std::string meant = session.numbers.Fmt_Up_To_Five(inches * thousand);
            if (meant.ends_with(session.numbers.Point() + std::string("0"))) {
                meant.resize(meant.size() - 2);
            }
            session.file.news =
                "Lifts are in thousandths of an inch: " + meant + " for " + lift.Text();
        }
    } catch (const Run_Time_Error&) {
        return; // a text that is no number is told elsewhere
    }
}

void Copy_Lift(Session& session, const Control& lift) {
    Tell_Thousandths(session, lift);
    session.Sheet(lift.Owner().Id().number).Text108(lift.Index()).Set_Text(lift.Text());
}

/// An empty limit of the graph is shown as "-" and keeps the focus.
void Put_Dash(Session& session, Control& field, const Control& tested) {
    if (tested.Text().empty()) {
        field.Set_Text("-");
        session.windows.Focus(field);
    }
}

bool Passes_Check(Session& session, Control& field) {
    switch (field.Entry().check) {
    case Leave_Check::No_Check:
        return true;
    case Leave_Check::Not_Blank:
        return Check_Not_Blank(session, field);
    case Leave_Check::Not_Zero:
        return Check_Not_Zero(session, field);
    }
    return true;
}

Control* Help_Line(Screen& screen) {
    return screen.Find("Label7", std::nullopt);
}

/// The graph goes with its window: the picture, what the mouse was doing on it, and the limits.
void Forget_Graph(Graph_State& graph) {
    graph.canvas.Forget();
    graph.plus_count = no_graph;
    graph.draw_width = 1;
    graph.drawing_now = false;
    graph.logo_moving = false;
    graph.x_low = 0;
    graph.x_high = 0;
    graph.y_low = 0;
    graph.y_high = 0;
}

} // namespace

void Click(Session& session, Control& control) {
    if (!control.Present_Look().enabled) {
        return;
    }
    if (control.Entry().kind == Control_Kind::Check_Box) {
        control.Set_Value(control.Value() == 0 ? 1 : 0);
    } else if (control.Entry().kind == Control_Kind::Option_Button) {
        Set_Option(control);
    }
    Run_Routine(session, control);
    if (session.Is_Loaded(Screen_Id{Screen_Kind::Engine})) { // it was no exit
        Mark_Choices(session);
    }
}

void Select(Session& session, Control& combo, std::string_view text) {
    if (std::ranges::find(combo.Items(), text) == combo.Items().end()) {
        return; // the list cannot give it
    }
    combo.Set_Text(text);
    Run_Routine(session, combo);
}

void Leave(Session& session, Control& field) {
    if (!Passes_Check(session, field)) {
        return;
    }
    switch (field.Entry().step) {
    case Leave_Step::No_Step:
        return;
    case Leave_Step::Mach_Limit:
        return Check_Limit(session, field, 1, "Mach # Can Not be Greater Than 1");
    case Leave_Step::Ratio_Limit:
        return Check_Limit(session, field, 25, "CR Can Not be Greater Than 25");
    case Leave_Step::Intake_Count:
        return Check_Valve_Count(session, field, "Number of Intake Valves Must be 1 to 4");
    case Leave_Step::Exhaust_Count:
        return Check_Valve_Count(session, field, "Number of Exhaust Valves Must be 1 to 4");
    case Leave_Step::Copy_Lift:
        return Copy_Lift(session, field);
    case Leave_Step::Dash_When_Empty:
        return Put_Dash(session, field, field);
    case Leave_Step::Dash_When_Low_Is_Empty:
        return Put_Dash(session, field, session.Form50().Text1);
    }
}

void Enter_Block(Session& session, const std::vector<New_Text>& texts) {
    for (const auto& [cell, text] : texts) {
        cell->Set_Text(text);
        if (cell->Entry().step == Leave_Step::Copy_Lift) {
            Copy_Lift(session, *cell);
        }
    }
}

void Hover_Over(Control& control) {
    Control* const line = Help_Line(control.Owner());
    if (line == nullptr || control.Entry().hover == Hover::Leaves) {
        return;
    }
    if (control.Entry().hover == Hover::Shows) {
        line->Set_Text(control.Entry().tip);
        line->Set_Visible(true);
    } else {
        line->Set_Visible(false);
    }
}

void Hover_Over_Form(Screen& screen) {
    if (Control* const line = Help_Line(screen)) {
        line->Set_Visible(false);
    }
}

void Mouse_On_Picture(Session& session, Control& picture, Mouse_Action action, double x, double y) {
    if (&picture.Owner() != &session.Form60()) {
        return;
    }
    if (&picture == &session.Form60().Picture2) {
        Move_Logo(session, action, {.left = x, .top = y});
    } else {
        Mouse_On_Canvas(session, action, {x, y});
    }
}

bool Takes_Raw_Keys(const Control& control) {
    return control.Owner().Kind() == Screen_Kind::Report && control.Entry().array == "Text38";
}

void Press_Raw_Key(Session& session, const Control& control, char32_t character) {
    if (Takes_Raw_Keys(control)) {
        Press_Key_On_Report(session, character);
    }
}

void Close_Window(Session& session, Screen& screen) {
    switch (screen.Kind()) {
    case Screen_Kind::Engine:
        Close_Main(session);
        break;
    case Screen_Kind::Compare:
    case Screen_Kind::Report:
        session.Hide(screen); // does what "Quit" does, and the closing is cancelled
        break;
    case Screen_Kind::Graph:
        Forget_Graph(Graph_Of(session));
        [[fallthrough]];
    case Screen_Kind::Sheet:
        session.Unload(screen);
        break;
    }
}

bool Has_Routine(const Control& control) {
    return Routine_Of(control) != nullptr;
}

} // namespace kestrum
