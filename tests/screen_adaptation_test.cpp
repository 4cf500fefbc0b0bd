#include "graph/graph_state.h"
#include "screens/geometry.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

/// Worked out by hand from the design sizes: `Main` 880 by 437 pixels, `Form60` 1120 by 664.
struct Display_Case {
    const char* name;
    Display display;
    bool free_aspect;
    Twips main;
    double main_letters; // points; they have 8.25 by design
    double scale_x;
    double scale_y;
    double scale_font;
    int plot_right;
    int plot_bottom;
};

const std::vector<Display_Case> display_cases{
    // 1776 / 880, 999 / 437; the graph by 999 / 664 both ways
    {"usual",
     {1920, 1080, 96},
     false,
     {1080, 303.75, 26640, 14985},
     18.315,
     1.5045180722891566,
     1.5045180722891566,
     1.5045180722891566,
     902,
     902},
    // the graph by 1776 / 1120 and 999 / 664, letters by 1.1 times the width
    {"free",
     {1920, 1080, 96},
     true,
     {1080, 303.75, 26640, 14985},
     18.315,
     1.5857142857142856,
     1.5045180722891566,
     1.7442857142857144,
     950,
     902},
    // two thirds of the factors
    {"dense",
     {1920, 1080, 144},
     false,
     {5520, 1552.5, 17760, 9990},
     12.21,
     1.0030120481927711,
     1.0030120481927711,
     1.0030120481927711,
     601,
     601},
    // letters by 999 / 437 * 1.3 * 1.025
    {"wide",
     {3840, 1080, 96},
     false,
     {2160, 303.75, 53280, 14985},
     25.130736556064068,
     1.5045180722891566,
     1.5045180722891566,
     1.5045180722891566,
     902,
     902},
    // 22 pixels above and below: at the top; the graph is larger than its target
    {"smallest", {1200, 600, 96}, false, {675, 0, 16650, 8325}, 11.446875, 1, 1, 1, 599, 599},
    {"too narrow", {1199, 1080, 96}, true, {2392.5, 4822.5, 13200, 6555}, 8.25, 1, 1, 1, 599, 599},
    {"too low", {1920, 599, 96}, true, {7800, 1215, 13200, 6555}, 8.25, 1, 1, 1, 599, 599},
};

void Expect_Adapted(Test_Bench& bench, const Display_Case& wanted) {
    const Twips main = Place_In_Twips(bench.session.Main());
    EXPECT_DOUBLE_EQ(main.left, wanted.main.left);
    EXPECT_DOUBLE_EQ(main.top, wanted.main.top);
    EXPECT_DOUBLE_EQ(main.width, wanted.main.width);
    EXPECT_DOUBLE_EQ(main.height, wanted.main.height);
    EXPECT_DOUBLE_EQ(bench.At("Main.Text104(3)").Present_Look().font.size, wanted.main_letters);
    const Display_Scale& display = bench.session.display;
    EXPECT_DOUBLE_EQ(display.scale_x, wanted.scale_x);
    EXPECT_DOUBLE_EQ(display.scale_y, wanted.scale_y);
    EXPECT_DOUBLE_EQ(display.scale_font, wanted.scale_font);
    EXPECT_DOUBLE_EQ(display.canvas_x_size, 600 * wanted.scale_x);
    EXPECT_DOUBLE_EQ(Place_In_Twips(bench.At("Form60.Picture1")).height, 600 * wanted.scale_y);
    EXPECT_EQ(Graph_Of(bench.session).plot_right, wanted.plot_right);
    EXPECT_EQ(Graph_Of(bench.session).plot_bottom, wanted.plot_bottom);
    for (const char* const entry : {"Main.FullScrRes", "Main.AspectRatio"}) {
        EXPECT_FALSE(bench.At(entry).Present_Look().enabled);
    }
}

TEST(Screen_Adaptation, Fills_Nine_Tenths_Of_A_Large_Display) {
    for (const Display_Case& one : display_cases) {
        SCOPED_TRACE(one.name);
        Test_Bench by_switch(
            {.command_line = one.free_aspect ? "/FN" : "/fn /FS", .display = one.display});
        Expect_Adapted(by_switch, one);
        Test_Bench by_menu({.display = one.display});
        if (one.free_aspect) {
            by_menu.Click("Main.AspectRatio");
        }
        by_menu.Click("Main.FullScrRes");
        by_menu.Click("Main.FullScrRes"); // once in a session
        Expect_Adapted(by_menu, one);
    }
}

TEST(Screen_Adaptation, Reaches_Screens_Created_Later_And_Leaves_The_Factors_Of_The_Graph) {
    Test_Bench bench;
    for (const char* const name : {"Form2", "Form3", "Form60"}) {
        bench.Close(name); // they come back during the adaptation
    }
    bench.Click("Main.FullScrRes");
    const auto letters = [&bench](std::string_view address) {
        return bench.At(address).Present_Look().font.size;
    };
    const double of_sheet = letters("Form1.Text104(6)");
    EXPECT_GT(of_sheet, 8.25);
    EXPECT_EQ(letters("Form3.Text104(6)"), of_sheet);
    const double of_graph = letters("Form60.Label2");
    const Twips graph = Place_In_Twips(bench.session.Form60());
    bench.Close("Form60");
    for (const char* const name : {"Form1", "Form2", "Form3", "Form4", "Form5"}) {
        bench.Close(name);
    }
    EXPECT_EQ(letters("Form4.Text104(6)"), of_sheet) << "no sheet was left to copy from";
    EXPECT_EQ(letters("Form5.Text104(6)"), of_sheet) << "copied";
    EXPECT_EQ(letters("Form60.Label2"), of_graph);
    EXPECT_EQ(Place_In_Twips(bench.session.Form60()).left, graph.left);
    EXPECT_EQ(Place_In_Twips(bench.session.Form60()).width, graph.width);
    EXPECT_EQ(Place_In_Twips(bench.At("Form60.Picture1")).width,
              600 * bench.session.display.scale_x);
    EXPECT_DOUBLE_EQ(bench.session.display.scale_x, 1.5045180722891566);
    EXPECT_EQ(Graph_Of(bench.session).plot_bottom, 902);
}

TEST(Screen_Adaptation, Carries_The_Graph_And_Its_Logo_Over) {
    Test_Bench bench({.display = {.width = 1920, .height = 1080}});
    bench.platform.Choose(
        bench.folder.Write("shop.gif", std::string_view("GIF89a\x40\0\x30\0\0\0\0", 13)));
    bench.Click("Form60.Logo");
    bench.At("Form60.Picture2").Move_To({.left = 100, .top = 40});
    bench.Click("Main.AspectRatio");
    bench.Click("Form50.Command2");
    Graph_State& graph = Graph_Of(bench.session);
    graph.canvas.Line_By_Hand(10, 20, 30, 40, 0, 2);
    const double x_per_unit = graph.x_per_unit;
    graph.canvas.Keep_Journal(true);
    bench.Click("Main.FullScrRes");
    EXPECT_EQ(graph.canvas.Journal_Size(), 0U) << "nothing was drawn";
    const double x = bench.session.display.scale_x;
    const double y = bench.session.display.scale_y;
    const Draw_Operation& line = graph.canvas.Operations().back();
    EXPECT_DOUBLE_EQ(line.x2, 30 * x);
    EXPECT_DOUBLE_EQ(line.y2, 40 * y);
    EXPECT_DOUBLE_EQ(graph.x_per_unit, x_per_unit / x) << "for the overlays to come";
    const Twips logo = Place_In_Twips(bench.At("Form60.Picture2"));
    EXPECT_DOUBLE_EQ(logo.left, 100 * x);
    EXPECT_DOUBLE_EQ(logo.top, 40 * y);
    EXPECT_EQ(logo.width, 64);
    EXPECT_TRUE(bench.session.settings.logo.on);
    static_cast<void>(bench.Take_Events());
}

} // namespace

} // namespace kestrum
