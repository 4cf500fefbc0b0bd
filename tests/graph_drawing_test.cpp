#include "application/events.h"
#include "application/variables.h"
#include "graph/curve_fit.h"
#include "graph/graph_frame.h"
#include "graph/graph_state.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kestrum {

namespace {

constexpr double thin = 2;
constexpr double thick = 4;

const std::string short_curve =
    "exclamation box: There is a Problem Generating your Graph\r\n\r\nThere is one known Problem "
    "which can cause this error and that is not having enough data point to Graph.\r\n\r\nOne "
    "cause of this is trying to Graph % Change when the 2 lift curve are Identical\r\n\r\nIf this "
    "is not the case then PLEASE SEND a Print Screen of the Compare Screen to Customer "
    "Support.\r\n";

TEST(Curve_Fit, Gives_A_Value_Worked_By_Hand) {
    // Three points, tension 50: h = 1/2, the diagonal is 100 coth 25 - 4 = 96, the right side -2 *
    // 2500 / h = -10000, so the bend in the middle is -104.1667. A quarter of the way, with w =
    // 1/2500: (1 + 0.0416667) / 2 - 0.0416667 * sinh 12.5 / sinh 25 = 0.5208333 - 0.00000016.
    const std::vector<Curve_Point> points{{0, 0}, {1, 1}, {2, 0}};
    std::vector<Curve_Point> drawn;
    Sample_Curve(points, 50, 400, [&](const Curve_Point& at) { drawn.push_back(at); });
    ASSERT_EQ(drawn.size(), 399U);
    EXPECT_NEAR(drawn[99].x, 0.5, 1e-12);
    EXPECT_NEAR(drawn[99].y, 0.520833178, 1e-9);
    EXPECT_NEAR(drawn[199].y, 1, 1e-12) << "the middle point itself";
    EXPECT_NEAR(drawn[299].y, drawn[99].y, 1e-12);
    const std::vector<Curve_Point> bends = Fit_Tension_Spline(points, 50);
    EXPECT_NEAR(bends[1].y, -104.1666667, 1e-6);
    EXPECT_EQ(bends[0].y, 0);
    EXPECT_EQ(bends[2].y, 0);
}

TEST(Graph_Drawing, Tells_What_It_Drew_With) {
    Graph_Bench bench;
    const auto told = [&](std::string_view name) {
        return Variable_Named(bench.session, name).value();
    };
    EXPECT_EQ(told("Y_Label_Text(0)"), Variable_Value(""));
    bench.Draw(0); // to 290
    bench.Click("Form60.Check1");
    Mouse_On_Picture(bench.session, bench.At("Form60.Picture1"), Mouse_Action::Down, 10, 20);
    EXPECT_EQ(told("Y_Label_Text(0)"), Variable_Value("261"));
    EXPECT_EQ(told("Y_Label_Text(9)"), Variable_Value("0"));
    EXPECT_EQ(told("X_Label_Text(128)"), Variable_Value(""));
    EXPECT_EQ(Error_Of([&] { static_cast<void>(told("X_Label_Text(129)")); }), 9);
    const std::pair<const char*, double> numbers[] = {
        {"Curve_Sample_Count_From", 1500},
        {"Curve_Point_Count", 15},
        {"Curve_Red", 255},
        {"Curve_Blue", 0},
        {"Saved_Draw_Width", 4},
        {"Curve_Tension", 50},
    };
    for (const auto& [name, value] : numbers) {
        EXPECT_EQ(told(name), Variable_Value(value)) << name;
    }
}

TEST(Graph_Drawing, Draws_A_Curve_In_1498_Pieces) {
    Graph_Bench bench;
    EXPECT_EQ(bench.Draw(0), Events{});
    const auto pieces = bench.Lines(blue, thin);
    ASSERT_EQ(pieces.size(), 1498U);
    EXPECT_EQ(pieces.front().x1, 0);
    EXPECT_EQ(pieces.front().y1, 600);
    for (std::size_t at = 1; at < pieces.size(); ++at) {
        ASSERT_EQ(pieces[at].x1, pieces[at - 1].x2) << at;
        ASSERT_EQ(pieces[at].y1, pieces[at - 1].y2) << at;
    }
    EXPECT_NEAR(pieces.back().x2, 599.599733155, 1e-6)
        << "600 * 1498 / 1499: the last is not drawn";
    // From 0 to 140 on an axis to 290: 600 - 600 * 140 / 290 * 1498 / 1499.
    EXPECT_NEAR(pieces.back().y2, 310.538060, 1e-5);
    EXPECT_EQ(bench.Lines(red, thin).size(), 1498U);
    EXPECT_EQ(bench.Lines(blue, thick).size(), 1498U);
    EXPECT_EQ(bench.Lines(red, thick).size(), 1498U);
}

TEST(Graph_Drawing, A_Curve_Runs_Through_Its_Points) {
    Graph_Bench bench;
    const std::array<int, 15> values{0, 40, 10, 90, 95, 96, 20, 60, 61, 5, 77, 78, 200, 190, 199};
    for (int at = 0; at < 15; ++at) {
        bench.session.Sheet(1)
            .Text102(zero_lift_row + at)
            .Set_Text(bench.session.numbers.Fmt_Whole(values.at(static_cast<std::size_t>(at))));
    }
    bench.Draw(0); // 1400 wide, 280 + 10 high
    const auto pieces = bench.Lines(blue, thin);
    for (int at = 0; at < 15; ++at) {
        const double x = 600.0 * at / 14;
        const double y = 600 - 600.0 * values.at(static_cast<std::size_t>(at)) / 290;
        const auto nearest = std::ranges::min(pieces, {}, [&](const Draw_Operation& piece) {
            return std::hypot(piece.x2 - x, piece.y2 - y);
        });
        EXPECT_LT(std::hypot(nearest.x2 - x, nearest.y2 - y), 2.5) << at; // within half a piece
        EXPECT_NEAR(nearest.x2, x, 0.41) << at;
    }
}

TEST(Graph_Drawing, Later_Zeros_Are_No_Points_Of_A_Curve) {
    Graph_Bench bench;
    bench.Fill("Form1.Text102", {"0", "10", "0", "30", "40"});
    EXPECT_EQ(bench.Draw(0), Events{});
    // The count of the test, 15, gives the pieces; the last point is that at 400.
    const auto pieces = bench.Lines(blue, thin);
    EXPECT_EQ(pieces.size(), 1498U);
    EXPECT_NEAR(pieces.back().x2, 600.0 * 400 / 1400, 0.3);
}

TEST(Graph_Drawing, Lays_Grid_And_Frame) {
    Graph_Bench bench;
    bench.Draw(0);
    EXPECT_EQ(bench.Steps().front().kind, Draw_Kind::Clear);
    const auto grid = bench.Lines(0x909090, 1);
    ASSERT_EQ(grid.size(), 18U);
    EXPECT_EQ(grid.front().x1, 60);
    EXPECT_EQ(grid.front().y2, 600);
    EXPECT_EQ(grid.back().y1, 540);
    EXPECT_EQ(grid.back().x2, 600);
    const auto frame = bench.Lines(black, 3);
    ASSERT_EQ(frame.size(), 4U);
    EXPECT_EQ(frame[0].y1, 600);
    EXPECT_EQ(frame[0].y2, 600);
    EXPECT_EQ(frame[1].x2, 0);
    bench.session.settings.grid.style = Line_Style::Dash;
    bench.session.settings.grid.colour = 0x0000FF; // blue-green-red: red
    bench.Draw(0);
    EXPECT_EQ(bench.Lines(red, 1).size(), 18U);
    EXPECT_EQ(bench.Lines(red, 1)[0].style, Line_Style::Dash);
    EXPECT_EQ(bench.Lines(black, 3)[0].style, Line_Style::Solid);
    bench.session.settings.grid.style = Line_Style::Solid;
    bench.Draw(0);
    EXPECT_EQ(bench.Lines(red, 2).size() - bench.Lines(red, thin).size(), 0U);
    EXPECT_EQ(bench.Lines(red, 2).size(), 1498U + 18U) << "a wider pen for a colour of one's own";
}

struct Place_Case {
    const char* text;
    double x;
    double y;
    double size;
};

TEST(Graph_Drawing, Writes_Numbers_Texts_And_Legend_In_Their_Places) {
    Graph_Bench bench;
    bench.Draw(0);
    const Place_Case cases[] = {
        {" 261", 5, 62, 12}, // 290 less a tenth, under its line
        {" 29", 5, 542, 12},
        {" 0", 5, 602, 12},
        {"1260", 514, 584, 12}, // 540 - (4 * 6 + 2)
        {"140", 40, 584, 12},
        {"0", 0, 584, 12},
        {"CFM @ 28\"", 62, 16.56, 24},                 // 1.15 * 14.4
        {"Valve Lift Inches * 1000", 156, 552.32, 24}, // 584 - 1.1 * 28.8
        {"Intake = Blue / Exhaust = Red", 62, 50, 12},
        {"Thin Graph Lines Test 1 - Stock", 62, 69, 12},
        {"Thick Graph Lines Test 2 - Ported", 62, 88, 12},
    };
    for (const Place_Case& one : cases) {
        const Draw_Operation step = bench.Written(one.text);
        EXPECT_NEAR(step.x1, one.x, 1e-9) << one.text;
        EXPECT_NEAR(step.y1, one.y, 1e-9) << one.text;
        EXPECT_NEAR(step.size, one.size, 1e-9) << one.text;
    }
    bench.Click("Form50.Option2(0)");
    bench.Draw(0);
    EXPECT_EQ(bench.Written("Flow Test 1 - Stock").y1, 69);
}

TEST(Graph_Drawing, Captions_Shrink_Until_They_Fit) {
    Graph_Bench bench;
    bench.Draw(0);
    EXPECT_EQ(bench.Times_Written(bench.Get("Form50.Text71")), 0U) << "no caption is given";
    const Place_Case cases[] = {
        {"48 characters that fill the line just so, ......", 13, 601, 24}, // 576 of 598 wide
        {"49 characters, one more than fit in that size ...", 33.7272727, 601, 21.8181818},
        {"70 characters are too long at any size and run on from the left .......", 2, 601,
         18.0315552}, // 24 / 1.331
    };
    for (const Place_Case& one : cases) {
        bench.Set("Form50.Text71", one.text);
        bench.Set("Form50.Text72", one.text + std::string("."));
        bench.Draw(0);
        const Draw_Operation step = bench.Written(one.text);
        EXPECT_NEAR(step.x1, one.x, 1e-6) << one.text;
        EXPECT_NEAR(step.y1, one.y, 1e-6) << one.text;
        EXPECT_NEAR(step.size, one.size, 1e-6) << one.text;
        EXPECT_EQ(bench.Written(one.text + std::string(".")).y1, 620);
    }
}

TEST(Graph_Drawing, A_Short_Curve_Leaves_The_Last_One_A_Chance) {
    Graph_Bench bench;
    bench.Fill("Form1.Text102", {"0", "20", "20", "20", "20"}); // no change at the intake
    bench.Fill("Form2.Text102", {"0", "20", "20", "20", "20"});
    bench.Fill("Form1.Text103", {"0", "11", "12", "13", "14"});
    bench.Fill("Form2.Text103", {"0", "10", "10", "10", "10"});
    bench.Set("Form50.Text3", "700");
    EXPECT_EQ(bench.Draw(9), Events{short_curve}) << "once";
    EXPECT_TRUE(bench.Lines(red, thin).empty());
    EXPECT_TRUE(bench.Lines(blue, thick).empty());
    EXPECT_FALSE(bench.Lines(red, thick).empty());
    EXPECT_EQ(bench.Lines(black, 3).size(), 5U) << "the markers come after it";
}

TEST(Graph_Drawing, Identical_Tests_Have_No_Changes_To_Draw) {
    Graph_Bench bench;
    bench.Click("Form50.Option2(0)");
    EXPECT_EQ(bench.Draw(9), Events{short_curve});
    EXPECT_EQ(Graph_Of(bench.session).y_per_unit, 0);
}

TEST(Graph_Drawing, Marks_Points_Lifts_And_Quarter_Diameters) {
    Graph_Bench bench;
    bench.Set("Form1.Text102(9)", "350.0");
    bench.Set("Form50.Text4", "1050");
    bench.Click("Form50.Check1");
    bench.Click("Form50.Check3");
    bench.Draw(0);
    const auto quarter = bench.Lines(blue, thin).front();
    EXPECT_EQ(quarter.x1, 150) << "350 of 1400";
    EXPECT_EQ(quarter.x2, 150);
    EXPECT_EQ(quarter.y1, 0);
    EXPECT_EQ(quarter.y2, 599);
    const auto lift = bench.Lines(black, 4);
    ASSERT_EQ(lift.size(), 1U);
    EXPECT_DOUBLE_EQ(lift[0].x1, 450);
    const auto marks = std::ranges::count(bench.Steps(), Draw_Kind::Circle, &Draw_Operation::kind);
    EXPECT_EQ(marks, 60);
    const auto mark = std::ranges::find(bench.Steps(), Draw_Kind::Circle, &Draw_Operation::kind);
    EXPECT_EQ(mark->radius, 4);
    EXPECT_EQ(mark->x1, 0);
    EXPECT_EQ(mark->y1, 600);
}

TEST(Graph_Drawing, A_Change_Below_Zero_Has_Its_Zero_Line) {
    Graph_Bench bench;
    bench.Draw(9); // every value is half of the other test's: from -50 to 0
    const auto line = bench.Lines(black, 5);
    ASSERT_EQ(line.size(), 100U);
    EXPECT_EQ(line.front().x1, 0);
    EXPECT_EQ(line.back().x2, 600);
    EXPECT_EQ(line.back().y2, 0);
    EXPECT_EQ(bench.Written("0.0 - Zero Line ").y1, 2);
    EXPECT_EQ(bench.Written("0.0 - Zero Line ").x1, 5);
    EXPECT_EQ(bench.Times_Written("Flow Test 1 - Stock"), 1U);
    for (const std::string sheet : {"Form1.", "Form2."}) {
        bench.Fill_Even(sheet + "Text208", 1);
    }
    bench.Draw(9, 1);
    EXPECT_EQ(bench.Lines(black, 6).size(), 100U) << "thicker on an L/D axis";
}

TEST(Graph_Plus, Wants_A_Graph_And_Takes_Three_Overlays) {
    const std::string refused =
        "plain box: You are seeing this Message for one of 2 reasons\r\n\r\n1) You don't do a "
        "Graph "
        "before doing Graph Plus\r\n2) You are trying to do to many Graph Plus";
    Graph_Bench bench;
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{refused});
    EXPECT_TRUE(bench.Steps().empty());
    bench.Draw(0);
    const double offsets[] = {85, 150, 215};
    const char* const legends[] = {"Intake = Dark Green / Exhaust = Black",
                                   "Intake = Cyan / Exhaust = Magenta",
                                   "Intake = Green / Exhaust = Brown"};
    const int colours[] = {0x006400, 0x00FFFF, 0x00FF00};
    for (std::size_t at = 0; at < 3; ++at) {
        EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{});
        EXPECT_EQ(bench.Written(legends[at]).y1, 50 + offsets[at]);
        EXPECT_EQ(bench.Lines(colours[at], thick).size(), 1498U);
    }
    EXPECT_EQ(bench.Lines(0x8B0000, thin).size(), 1498U);
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{refused});
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 3);
    EXPECT_EQ(bench.Lines(black, 3).size(), 4U) << "one frame";
    bench.Draw(0);
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 0);
    EXPECT_EQ(bench.Lines(0x006400, thick).size(), 0U);
    EXPECT_EQ(Graph_Of(bench.session).legend_offset, 0);
    bench.session.display.scale_y = 1.25;
    bench.Click("Form50.Graph_Plus");
    EXPECT_EQ(Graph_Of(bench.session).legend_offset, 90);
}

TEST(Graph_Plus, Draws_On_The_Axes_That_Stand) {
    Graph_Bench bench;
    bench.Draw(0);
    bench.Fill_Even("Form1.Text102", 100); // to 1400, far above
    bench.Fill_Even("Form1.Text101", 200);
    bench.Set("Form50.Text2", "5");
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{}) << "no limit, so no question";
    EXPECT_EQ(Graph_Of(bench.session).y_high, 290);
    EXPECT_EQ(Graph_Of(bench.session).x_high, 1400);
    const auto pieces = bench.Lines(0x006400, thin);
    EXPECT_LT(pieces.back().y2, -2000) << "nothing is clipped";
    EXPECT_GT(pieces.back().x2, 1199);
}

TEST(Graph_Plus, Counts_A_Failed_Overlay_And_Forgets_A_Closed_Graph) {
    Graph_Bench bench;
    bench.Draw(0);
    bench.Fill("Form1.Text102", {"0", "10"});
    EXPECT_EQ(bench.Click("Form50.Graph_Plus"), Events{short_curve});
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 1);
    bench.Close("Form60");
    EXPECT_EQ(Graph_Of(bench.session).plus_count, 999);
}

} // namespace

} // namespace kestrum
