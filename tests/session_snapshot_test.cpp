#include "application/events.h"
#include "application/variables.h"
#include "core/session_snapshot.h"
#include "graph/graph_state.h"
#include "sheet/sheet_state.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <map>

namespace kestrum {

namespace {

/// All that a user can see or hear of a session.
std::map<std::string, Control_State> Controls_Of(Session& session) {
    std::map<std::string, Control_State> states;
    session.For_Each_Loaded([&states](Screen& screen) {
        states[screen.Name() + (screen.visible ? " shows" : " is hidden")].text = screen.caption;
        for (const Control& control : screen.Controls()) {
            states[control.Address()] = control.Present_State();
        }
    });
    return states;
}

std::map<std::string_view, Variable_Value> Variables_Of(const Session& session) {
    std::map<std::string_view, Variable_Value> values;
    for (const std::string_view name :
         {"Comma_Mode", "Align_Mode", "File_Path", "Title_Text", "Intake_Valves", "Exhaust_Valves",
          "Grid_On", "Grid_Colour", "Draw_Line_Color", "Draw_Line_Width", "Logo_On", "Logo_File",
          "Canvas_X_Size", "Flow_Filter_Index", "Records_Read", "Full_Screen_Mode"}) {
        if (const auto value = Variable_Named(session, name)) {
            values[name] = *value;
        }
    }
    return values;
}

TEST(Session_Snapshot_Test, Puts_Back_All_That_Commands_Have_Changed) {
    Graph_Bench bench;
    Session& session = bench.session;
    bench.Click("Main.Command1"); // sheet 1 shows
    bench.Draw(0);
    session.Form60().Picture2.Move_To({.left = 30, .top = 40});
    Sheets_Of(session).intake_seat.angle = 45;
    static_cast<void>(session.Sheet(4));
    session.Unload(session.Form70()); // is made again behind the snapshot
    ASSERT_FALSE(session.Is_Loaded("Form70"));
    const auto controls = Controls_Of(session);
    const auto variables = Variables_Of(session);
    ASSERT_GT(variables.size(), 10U);
    const std::size_t steps = bench.Steps().size();
    const double high = Graph_Of(session).y_high;
    const Session_Snapshot snapshot(session);

    bench.Set("Form1.Text106(17)", "41");
    bench.Click("Form1.Command1");
    bench.Click("Main.Check2"); // metric
    bench.Click("Main.Command51");
    bench.Draw(3);
    Graph_Of(session).canvas.Line_By_Hand(0, 0, 9, 9, 0, 1);
    session.Form60().Combo1.Set_Items({"1"});
    session.Form60().Picture2.Move_To({.left = 1, .top = 2});
    session.numbers.comma_mode = 1;
    session.numbers.align_mode = Alignment::Center;
    session.title_text = "other";
    session.settings.logo.on = true;
    session.settings.grid.colour = 5;
    Sheets_Of(session).intake_seat.angle = 30;
    Look bold = bench.At("Form1.Text101(16)").Present_Look();
    bold.font.bold = true;
    bench.At("Form1.Text101(16)").Set_Look(bold);
    session.Sheet(1).caption = "other";
    bench.Close("Form4");
    bench.Close("Form1");
    session.Show(session.Form70());
    static_cast<void>(bench.Take_Events());
    ASSERT_NE(Controls_Of(session), controls);

    snapshot.Put_Back(session);
    EXPECT_EQ(bench.Take_Events(), (Events{"hide Form70", "unload Form70", "show Form1"}));
    EXPECT_EQ(Controls_Of(session), controls);
    EXPECT_EQ(Variables_Of(session), variables);
    EXPECT_EQ(bench.Steps().size(), steps);
    EXPECT_EQ(Graph_Of(session).y_high, high);
    EXPECT_EQ(Sheets_Of(session).intake_seat.angle, 45);
}

TEST(Session_Snapshot_Test, What_Is_Put_Back_Is_Shown_And_Later_Snapshots_See_Later_Changes) {
    Test_Bench bench;
    Flow_Sheet& sheet = bench.session.Sheet(1);
    const Session_Snapshot first(bench.session);
    bench.Set("Form1.Text106(17)", "41");
    const Session_Snapshot second(bench.session);
    bench.Set("Form1.Text107(17)", "42");
    static_cast<void>(sheet.Take_Changes());
    second.Put_Back(bench.session);
    EXPECT_EQ(sheet.Take_Changes(), (std::vector<Control*>{&bench.At("Form1.Text107(17)")}));
    EXPECT_EQ(bench.Get("Form1.Text106(17)"), "41");
    first.Put_Back(bench.session);
    EXPECT_EQ(sheet.Take_Changes(), (std::vector<Control*>{&bench.At("Form1.Text106(17)")}));
    EXPECT_EQ(bench.Get("Form1.Text106(17)"), "35.8");
    second.Put_Back(bench.session);
    EXPECT_EQ(bench.Get("Form1.Text106(17)"), "41");
}

TEST(Session_Snapshot_Test, A_Drawing_And_Its_Copy_Go_Their_Own_Ways) {
    Drawing drawing;
    drawing.Line(0, 0, 1, 1, 0, 1);
    const Drawing kept = drawing;
    drawing.Line(1, 1, 2, 2, 0, 1);
    EXPECT_EQ(kept.Operations().size(), 1U);
    Drawing cleared = drawing;
    cleared.Clear();
    EXPECT_EQ(drawing.Operations().size(), 2U);
    EXPECT_EQ(cleared.Operations().size(), 1U) << "the clearing itself";
}

struct Bad_Cell {
    const char* address;
    const char* command;
};

TEST(Failing_Cell_Test, An_Error_Knows_The_Field_That_Was_Read) {
    for (const Bad_Cell& line : {Bad_Cell{"Form1.Text106(6)", "Form1.Command1"},
                                 Bad_Cell{"Main.Text101(8)", "Main.Command51"},
                                 Bad_Cell{"Form3.Text106(20)", "Main.Check2"}}) {
        Test_Bench bench;
        static_cast<void>(bench.session.Sheet(3));
        bench.Set(line.address, "3x");
        try {
            Click(bench.session, bench.At(line.command));
            ADD_FAILURE() << line.command;
        } catch (const Run_Time_Error& failure) {
            EXPECT_EQ(failure.Number(), 13);
            EXPECT_EQ(failure.Field(), line.address);
        }
        static_cast<void>(bench.Take_Events());
    }
}

} // namespace

} // namespace kestrum
