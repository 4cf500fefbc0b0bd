#include "application/events.h"
#include "application/variables.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <variant>

namespace kestrum {

namespace {

double Variable(const Session& session, std::string_view name) {
    return std::get<double>(Variable_Named(session, name).value());
}

TEST(Start_Up, Calculates_The_Sheets_And_Shows_Main) {
    Test_Bench bench;
    EXPECT_EQ(bench.at_start, Events{"show Main"});
    const std::string title =
        "Tarvex / Kestrum -- Orvald and Brone' -- Kestrum Suite -- Version: 5.0.0";
    EXPECT_EQ(bench.session.Main().caption, title);
    EXPECT_EQ(bench.session.Form50().caption, title + " -- Compare 2 Flow Tests");
    EXPECT_EQ(bench.session.Form60().caption, title + " -- Graph and Annotate");
    EXPECT_EQ(bench.session.Form70().caption, title + " -- Select Items for Text Report");
    EXPECT_EQ(bench.session.Sheet(2).caption, "") << "a sheet gets its caption when it is opened";
    for (const auto& [name, value] :
         {std::pair("Comma_Mode", 0.0), std::pair("Align_Mode", 0.0), std::pair("Screen_Dpi", 96.0),
          std::pair("Scale_X", 1.0), std::pair("Grid_Colour", 9474192.0), // 0x909090
          std::pair("Draw_Line_Color", 99999.0), std::pair("Flow_Filter_Index", 1.0),
          std::pair("Canvas_X_Size", 600.0), std::pair("Intake_Valves", 1.0)}) {
        EXPECT_EQ(Variable(bench.session, name), value) << name;
    }
    EXPECT_FALSE(Variable_Named(bench.session, "No_Such").has_value());
}

TEST(Start_Up, Says_That_The_Comma_Is_The_Mark) {
    Test_Bench bench({.point = ","});
    EXPECT_EQ(bench.at_start,
              (Events{"information box: Program Set for Decimal Point to be >>,<< [Comma] ",
                      "show Main"}));
    Expect_Texts(bench, {{"Main.Text104(3)", "4,125"},
                         {"Form4.Text109(17)", "112,83"},
                         {"Main.Label2(9)", "= Input Field"}});
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{});
}

TEST(Start_Up, Takes_Switches_From_Anywhere_In_The_Line) {
    struct Case {
        std::string_view line;
        double full_screen, aspect_free;
        bool pointer;
    };

    constexpr Case cases[] = {
        {"", 0, 0, false},        {"/FS", 1, 0, false},    {"-x/fn", 1, 1, false},
        {"/fn /fs", 1, 0, false}, {"/fs /MP", 1, 0, true}, {"/mp", 0, 0, true},
        {"fs mp", 0, 0, false},
    };
    for (const Case& c : cases) {
        Test_Bench bench({.command_line = std::string(c.line)});
        EXPECT_EQ(Variable(bench.session, "Full_Screen_Mode"), c.full_screen) << c.line;
        EXPECT_EQ(Variable(bench.session, "Aspect_Free"), c.aspect_free) << c.line;
        EXPECT_EQ(bench.At("Main.FullScrRes").Present_Look().enabled, c.full_screen == 0) << c.line;
        EXPECT_EQ(bench.At("Main.MouseP").Present_Look().enabled, !c.pointer) << c.line;
        EXPECT_EQ(bench.session.Sheet(5).plain_pointer, c.pointer) << c.line;
    }
}

TEST(Navigation, Shows_Hides_And_Closes_Screens) {
    Test_Bench bench;
    EXPECT_EQ(bench.Click("Main.Command50"), Events{"show Form50"});
    EXPECT_EQ(bench.Click("Main.Command50"), Events{}) << "it shows already";
    EXPECT_EQ(bench.Close("Form50"), Events{"hide Form50"}) << "this closing is cancelled";
    EXPECT_TRUE(bench.session.Is_Loaded("Form50"));
    EXPECT_EQ(bench.Click("Main.Command33"), Events{"show Form70"});
    EXPECT_EQ(bench.Click("Form70.subend"), Events{"hide Form70"});
    EXPECT_EQ(bench.Close("Form60"), Events{"unload Form60"});
    for (const auto& [open, panel, close] :
         {std::tuple("Main.Preload", "Main.Frame4", "Main.Command44"),
          std::tuple("Main.Co_Name", "Main.Frame96", "Main.Command95")}) {
        EXPECT_FALSE(bench.At(panel).Present_Look().visible);
        bench.Click(open);
        EXPECT_TRUE(bench.At(panel).Present_Look().visible) << panel;
        bench.Click(close);
        EXPECT_FALSE(bench.At(panel).Present_Look().visible) << panel;
    }
    const Events about = bench.Click("Main.About");
    ASSERT_EQ(about.size(), 1U);
    EXPECT_TRUE(about[0].starts_with("information box: Tarvex / Kestrum")) << about[0];
    EXPECT_NE(about[0].find("5.0.0 -- February 12, 2026\r\n"), std::string::npos);
    EXPECT_NE(about[0].find("MIT"), std::string::npos);
}

TEST(Navigation, Menu_Entries_Are_Used_Up) {
    Test_Bench bench;
    bench.Click("Main.MouseP");
    EXPECT_TRUE(bench.session.Form70().plain_pointer);
    bench.session.Form70().plain_pointer = false;
    bench.Click("Main.MouseP");
    EXPECT_FALSE(bench.session.Form70().plain_pointer) << "a disabled entry does nothing";
    bench.Click("Main.AspectRatio");
    EXPECT_TRUE(bench.session.display.aspect_free);
    EXPECT_FALSE(bench.At("Main.AspectRatio").Present_Look().enabled);
}

TEST(Navigation, Options_Exclude_Each_Other_Within_Their_Group) {
    Test_Bench bench;
    bench.Click("Form50.Option1(3)");
    EXPECT_EQ(bench.At("Form50.Option1(0)").Value(), 0);
    EXPECT_EQ(bench.At("Form50.Option1(3)").Value(), 1);
    EXPECT_EQ(bench.At("Form50.Option2(1)").Value(), 1) << "another group";
    bench.Click("Form50.Option1(3)");
    EXPECT_EQ(bench.At("Form50.Option1(3)").Value(), 1) << "an option is set, never cleared";
}

TEST(Exit, Unloads_All_Screens_And_Keeps_The_Session) {
    Test_Bench bench;
    bench.Click("Main.Command2");
    const Events events = bench.Click("Main.Exit");
    ASSERT_GE(events.size(), 8U);
    EXPECT_EQ(Events(events.begin(), events.begin() + 5),
              (Events{"hide Main", "unload Main", "unload Form1", "hide Form2", "unload Form2"}));
    bool any_left = false;
    bench.session.For_Each_Loaded([&any_left](Screen& /*screen*/) { any_left = true; });
    EXPECT_FALSE(any_left);
    EXPECT_TRUE(bench.folder.Read("zxqw1234.sav").find("Text104_3 = 4.125\r\n") !=
                std::string::npos);
}

TEST(Hover, The_Help_Line_Follows_The_Mouse) {
    enum class After { Shows, Hides, Stays };

    struct Case {
        std::string_view control;
        After after;
        std::string_view text;
    };

    constexpr Case cases[] = {
        {"Main.Command51", After::Shows, "Lets you Calculate the above Data."},
        {"Main.Text103(3)", After::Shows,
         "The \"Mean Port Area\" should be obtained from the Flow Test screen where it is "
         "Calculated from your input."},
        {"Main.Text101(0)", After::Stays, ""},
        {"Main.Text101(1)", After::Hides, ""},
        {"Main.Text109(3)", After::Hides, ""},
        {"Main.Command44", After::Shows,
         "When done Selecting Flow Data File Names, Clicking this will Close This Window."},
        {"Form1.Text105(4)", After::Shows,
         "This is the ratio of the valve area versus the port area.\r\nFor a typical V8 pushrod "
         "engines heads best results are usually seen when this number is between 0.8 to 0.9"},
        {"Form1.Text105(2)", After::Hides, ""},
        {"Form1.Text107(0)", After::Shows, "This is the Top Corner Radius of the Exhaust Port"},
        {"Form1.Text109(3)", After::Shows,
         "Area at manifold face or enter height and width at percieved choke point."},
        {"Form1.Text104(0)", After::Hides, ""},
        {"Form1.Frame1", After::Hides, ""},
    };
    Test_Bench bench;
    for (const Case& c : cases) {
        Control& control = bench.At(c.control);
        Control& line = *control.Owner().Find("Label7", std::nullopt);
        line.Set_Text("before");
        line.Set_Visible(c.after != After::Shows);
        Hover_Over(control);
        EXPECT_EQ(line.Present_Look().visible, c.after != After::Hides) << c.control;
        if (c.after != After::Hides) {
            EXPECT_EQ(line.Text(), c.after == After::Shows ? c.text : "before") << c.control;
        }
        line.Set_Visible(true);
        Hover_Over_Form(control.Owner());
        EXPECT_FALSE(line.Present_Look().visible) << c.control;
    }
}

} // namespace

} // namespace kestrum
