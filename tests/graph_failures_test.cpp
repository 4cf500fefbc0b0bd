#include "files/main_data_file.h"
#include "graph/graph_state.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum {

namespace {

const std::string graph_failed =
    "exclamation box: There is a Problem Generating your Graph\r\n\r\nThere is one known Problem "
    "which can cause this error and that is not having enough data point to Graph.\r\n\r\nOne "
    "cause of this is trying to Graph % Change when the 2 lift curve are Identical\r\n\r\nIf this "
    "is not the case then PLEASE SEND a Print Screen of the Compare Screen to Customer "
    "Support.\r\n";

/// Whether any of the four curves of a first graph stands on the canvas.
bool Shows_Curves(const Graph_Bench& bench) {
    return !bench.Lines(blue, 2).empty() || !bench.Lines(red, 2).empty() ||
           !bench.Lines(blue, 4).empty() || !bench.Lines(red, 4).empty();
}

struct Lift_Case {
    const char* lift;
    bool metric;
    int lines; // 10 where the graph cannot be drawn
};

TEST(Graph_Failures, No_Lift_Asks_For_More_Than_2000_Lines) {
    const Lift_Case cases[] = {
        {"200000", false, 2000}, {"200000.5", false, 10}, {"6000", true, 2000},
        {"6001", true, 10},      {"1E7", false, 10},      {"1E9", false, 10},
        {"1E12", true, 10},      {"1E301", false, 10},    {"1E301", true, 10},
    };
    for (const Lift_Case& one : cases) {
        SCOPED_TRACE(one.lift);
        Graph_Bench bench;
        bench.Click("Main.Check2");
        if (!one.metric) {
            bench.Click("Main.Check2");
        }
        bench.Fill("Form1.Text101", {"0", "10", "20", "30", "40", one.lift});
        bench.Fill("Form2.Text101", {"0", "10", "20", "30", "40", one.lift});
        bench.Click("Form50.Check2");
        const bool fails = one.lines == 10;
        EXPECT_EQ(bench.Draw(0), fails ? Events{graph_failed} : Events{});
        EXPECT_EQ(Graph_Of(bench.session).x_line_count, one.lines);
        EXPECT_EQ(Shows_Curves(bench), !fails);
        EXPECT_EQ(bench.Lines(0, 3).size(), 1U + 3U) << "the frame stands";
        EXPECT_LT(bench.Steps().size(), 20000U);
    }
}

TEST(Graph_Failures, An_Axis_Without_A_Length_Is_Told_Of_Once_For_Each_Drawing) {
    Graph_Bench bench;
    for (const char* const column : {"Form1.Text101", "Form2.Text101"}) {
        for (int row = first_test_row; row <= last_lift_row; ++row) {
            bench.session.Sheet(column[4] - '0').Text101(row).Set_Text("0.0"); // counts as a point
        }
        bench.Set(std::string(column) + "(16)", "0");
    }
    EXPECT_EQ(bench.Draw(0), Events{graph_failed});
    EXPECT_FALSE(Shows_Curves(bench));
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 0);
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), (Events{graph_failed}));
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 1);
    EXPECT_EQ(bench.Draw(9), Events{graph_failed}) << "and no zero line, whose place nobody knows";
}

TEST(Graph_Failures, Graph_Plus_Goes_On_After_A_Graph_Of_One_Test_With_Itself) {
    Graph_Bench bench;
    bench.Click("Form50.Option2(0)");
    EXPECT_EQ(bench.Draw(9), Events{graph_failed});
    bench.Click("Form50.Option2(1)");
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{graph_failed});
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 1);
    EXPECT_TRUE(bench.Lines(0x006400, 2).empty()) << "the intake of an overlay";
}

TEST(Graph_Failures, A_Limit_At_The_Other_End_Of_The_Axis_Leaves_No_Height) {
    Graph_Bench bench;
    for (const char* const column : {"Form1.Text102", "Form1.Text103"}) {
        bench.Fill(column, {"0", "86", "86", "86", "86"});
    }
    for (const char* const column : {"Form2.Text102", "Form2.Text103"}) {
        bench.Fill(column, {"0", "100", "100", "100", "100"}); // 14 % less in From
    }
    bench.Set("Form50.Text2", "-14");
    const Events events = bench.Draw(9);
    ASSERT_EQ(events.size(), 2U);
    EXPECT_NE(events[0].find("High Y_Axis of -14 is Lower"), std::string::npos);
    EXPECT_EQ(events[1], graph_failed);
    EXPECT_EQ(Graph_Of(bench.session).y_low, -14);
    EXPECT_EQ(Graph_Of(bench.session).y_high, -14);
    EXPECT_EQ(bench.Times_Written("0.0 - Zero Line "), 0U);
    EXPECT_FALSE(Shows_Curves(bench));
}

/// Loads the records of a main data file. Gives what happened.
Events Load(Test_Bench& bench, std::string_view records) {
    static_cast<void>(Read_Main_Records(bench.session, records));
    return bench.Take_Events();
}

TEST(Graph_Settings, A_Line_Style_That_Is_None_Fails_Its_Record) {
    for (const std::string_view number : {"7", "3", "-1", "32767"}) {
        Graph_Bench bench;
        bench.Click("Main.Grid_Dash");
        const std::string line = "Grid_DrawStyle = " + std::string(number);
        const Events events = Load(bench, "Grid_SW = 1\r\n" + line + "\r\nComp_Name = Never\r\n");
        ASSERT_EQ(events.size(), 2U);
        EXPECT_EQ(events[0],
                  "plain box [OK, Cancel]: Error Number 380 -- Invalid property valueInvalid Input "
                  "Record # - 2   Data --> " +
                      line);
        EXPECT_EQ(bench.session.settings.grid.style, Line_Style::Dash) << "as it was";
        EXPECT_EQ(bench.Get("Main.Text94"), "");
        EXPECT_EQ(bench.Draw(0), Events{});
    }
    Graph_Bench bench;
    EXPECT_EQ(Load(bench, "Grid_DrawStyle = 2\r\n"), Events{});
    bench.Draw(0);
    EXPECT_EQ(bench.Lines(0x909090, 1).at(0).style, Line_Style::Dot);
}

TEST(Graph_Settings, Switches_Are_0_Or_1_And_Colours_Have_24_Bits) {
    Graph_Bench bench;
    EXPECT_EQ(Load(bench, "Grid_SW = 5\r\nGrid_Color = 16777471\r\nLogo_SW = -1\r\n"), Events{});
    EXPECT_FALSE(bench.session.settings.grid.on);
    EXPECT_EQ(bench.session.settings.grid.colour, 255);
    EXPECT_FALSE(bench.session.settings.logo.on);
    Load(bench, "Grid_SW = 1\r\nGrid_Color = -1\r\n");
    EXPECT_TRUE(bench.session.settings.grid.on);
    EXPECT_EQ(bench.session.settings.grid.colour, 0xFFFFFF);
    bench.platform.colour = 0x7F0000FF;
    bench.Click("Main.Grid_Color");
    EXPECT_EQ(bench.session.settings.grid.colour, 255);
    EXPECT_EQ(bench.session.answers.colour, "255");
    EXPECT_EQ(Load(bench, "Logo_Left = 1E39\r\n").size(), 2U) << "beyond single precision";
}

TEST(Graph_Settings, A_Main_Data_File_Keeps_Colour_Style_And_Place_Of_The_Logo) {
    std::string saved;
    {
        Graph_Bench bench;
        bench.platform.colour = 0x0040FF; // blue-green-red
        bench.Click("Main.Grid_Color");
        bench.Click("Main.Grid_Dot");
        bench.session.Form60().Picture2.Move_To({.left = 12.5, .top = 340});
        saved = Main_File_Text(bench.session);
    }
    EXPECT_NE(saved.find("Logo_Top = 340\r\nLogo_Left = 12.5\r\n"), std::string::npos);
    EXPECT_NE(saved.find("Grid_SW = 1\r\nGrid_Color = 16639\r\nGrid_DrawStyle = 2\r\n"),
              std::string::npos);
    Graph_Bench bench;
    EXPECT_EQ(Load(bench, saved), Events{});
    bench.Draw(0);
    const auto grid = bench.Lines(0xFF4000, 1);
    ASSERT_EQ(grid.size(), 18U);
    EXPECT_EQ(grid[0].style, Line_Style::Dot);
    const Position& logo = bench.session.Form60().Picture2.Moved_To();
    EXPECT_EQ(logo.left, 12.5);
    EXPECT_EQ(logo.top, 340);
}

} // namespace

} // namespace kestrum
