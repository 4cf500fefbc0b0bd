#include "output/flow_sheet_print.h"
#include "tests/print_test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

using Words = std::vector<std::string>;

class Sheet_Print : public ::testing::Test {
protected:
    Drawing Page() { return All_Pages().front(); }

    Pages All_Pages(const Paper& paper = {}) {
        return Flow_Sheet_Pages(bench_.session, bench_.session.Sheet(1), paper);
    }

    /// First words of the page, without those of the title that come before.
    Words Head(std::size_t count) {
        const Words all = In_Words(Page());
        return {all.begin() + 2, all.begin() + 2 + static_cast<std::ptrdiff_t>(count)};
    }

    void Set_Company() {
        bench_.Set("Main.Text94", "AB");
        bench_.Set("Main.Text95", "X"); // too short to be printed
        bench_.Set("Main.Text96", "Town");
    }

    Print_Bench bench_;
};

// A character is 10 twips wide for each point of its size, a line 24 twips high.

TEST_F(Sheet_Print, Head_Begins_With_Title_And_Rule) {
    // 72 characters of size 13: 9360 of 12150.
    bench_.session.title_text = std::string(72, 'T');
    const Words all = In_Words(Page());
    EXPECT_EQ(all[0], "1395 150 13 plain " + std::string(72, 'T'));
    EXPECT_EQ(all[1], "line 50 512 12150 512 20"); // 150 + 312 + 50
    EXPECT_EQ(Page().Operations().front().font, "Arial");
    EXPECT_EQ(Page().Operations().front().anchor, Text_Anchor::Centre);
}

TEST_F(Sheet_Print, Company_Stands_Left_In_The_Middle_Or_Right) {
    Set_Company();
    const Words customer{"125 1383 12 bold Customer Name: ____________________________",
                         "7515 1383 12 bold Printed: Monday November 16 2026 9:5:3",
                         "125 1771 12 bold Order / Invoice #: ____________________________",
                         "line 50 2209 12150 2209 1"};
    const auto with = [&](std::string_view name, std::string_view town) {
        Words words{std::string(name) + " 612 16 bold AB",
                    std::string(town) + " 996 13 plain Town"};
        words.insert(words.end(), customer.begin(), customer.end());
        return words;
    };
    EXPECT_EQ(Head(6), with("150", "150"));
    bench_.Click("Main.Option4(1)");
    EXPECT_EQ(Head(6), with("5877.5", "5777.5"));
    bench_.Click("Main.Option4(2)");
    EXPECT_EQ(Head(6), with("11605", "11405"));
}

TEST_F(Sheet_Print, Logo_Stands_Opposite_The_Company_Or_At_The_Foot) {
    bench_.Take_Logo();
    // Below 612 + 75 without it, below 512 + 150 + 720 + 75 with it.
    EXPECT_EQ(Head(1), Words{"picture 10965 662 960 720"});
    EXPECT_EQ(Place_Of_Text(Page(), "Customer Name: ____________________________"),
              "125 1457 12 bold Customer Name: ____________________________");
    bench_.Click("Main.Option4(2)");
    EXPECT_EQ(Head(1), Words{"picture 150 662 960 720"});
    EXPECT_EQ(Place_Of_Text(Page(), "Customer Name: ____________________________"),
              "125 1132 12 bold Customer Name: ____________________________");
    bench_.Click("Main.Option4(1)");
    EXPECT_EQ(Head(1), Words{"125 687 12 bold Customer Name: ____________________________"});
    EXPECT_EQ(In_Words(Page()).back(), "picture 0 12859 960 720");
}

TEST_F(Sheet_Print, Logo_That_Is_On_Without_A_Picture_Is_Passed_Over) {
    bench_.session.settings.logo.on = true;
    for (const char* const head : {"Main.Option4(0)", "Main.Option4(1)", "Main.Option4(2)"}) {
        bench_.Click(head);
        for (const std::string& words : In_Words(Page())) {
            EXPECT_FALSE(words.starts_with("picture")) << head;
        }
    }
}

TEST_F(Sheet_Print, Logo_At_The_Foot_Of_A_Long_Sheet_Goes_To_A_New_Page) {
    bench_.Take_Logo();
    bench_.Click("Main.Option4(1)");
    bench_.Set("Form1.Text38", "1\r\n2\r\n3");
    // Three lines, the gap and the rule take 792 + 100 + 150: 12859 + 1042 is beyond 13800.
    const Pages pages = All_Pages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(In_Words(pages[1]), Words{"picture 0 0 960 720"});
}

TEST_F(Sheet_Print, Dimensions_Stand_In_Their_Cells) {
    const Drawing page = Page();
    EXPECT_EQ(Row_At(page, 1613), (Words{"300 10 bold Test Bore Diameter", "2630 11 plain 4.11",
                                         "3650 10 bold Part #", "4830 11 plain E7TE"}));
    EXPECT_EQ(Row_At(page, 1877).front(), "1200 10 bold Port Volume"); // as wide as its cell
    EXPECT_EQ(Row_At(page, 1877).back(), "11200 10 bold Port Area");
    const Words intake = Row_At(page, 2117);
    EXPECT_EQ(intake.front(), "350 10 bold Intake");
    EXPECT_EQ(intake[1], "1585 11 plain 203");
    EXPECT_EQ(intake[7], "8295 11 plain 1");  // number of valves
    EXPECT_EQ(intake[8], "9340 11 plain 52"); // seat angle
    EXPECT_EQ(intake[9], "10330 11 plain 5.37");
    EXPECT_EQ(Row_At(page, 2381)[8], "9340 11 plain 42");
    const Words third = Row_At(page, 2645);
    EXPECT_EQ(third[0], "300 10 bold Exhaust Pipe Used?");
    EXPECT_EQ(third[1], "2740 11 plain No");
    EXPECT_EQ(third[2], "3500 10 bold Throat / Valve Ratio");
    EXPECT_EQ(Place_Of_Text(page, "NOTE: Mean Port Velocity should be in the 300-320 fps range "
                                  "around max valve lift"),
              "100 3059 10 plain NOTE: Mean Port Velocity should be in the 300-320 fps range "
              "around max valve lift");
}

TEST_F(Sheet_Print, Tables_Follow_With_Their_Sums) {
    const Drawing page = Page();
    EXPECT_EQ(Row_At(page, 3399).front(), "350 10 bold Actual");
    EXPECT_EQ(Row_At(page, 3879).front(), "200 10 bold Lift Inch");
    EXPECT_EQ(Row_At(page, 4119).front(), "540 11 plain 50");
    EXPECT_EQ(Row_At(page, 7551).front(), "430 11 plain 1000");
    EXPECT_EQ(Row_At(page, 7815).front(), "1400 10 bold Average"); // 3 x 240 + 14 x 264 further
    EXPECT_EQ(Row_At(page, 7815)[2], "3500 10 bold Total CFM");
    EXPECT_EQ(Row_At(page, 8179).front(), "350 10 bold Actual"); // 264 and the gap further
    EXPECT_EQ(Row_At(page, 12595)[2], "3500 10 bold Total CFM");
}

TEST_F(Sheet_Print, Rows_Without_Lift_Or_Flow_Are_Left_Out) {
    bench_.Set("Form1.Text101(20)", "0");
    bench_.Set("Form1.Text102(18)", "0.0"); // of the intake alone
    bench_.Set("Form1.Text102(16)", "5");   // lift 0, which counts from the next row on
    const Drawing page = Page();
    EXPECT_EQ(Row_At(page, 4119)[2].substr(0, 13), "2795 11 plain");
    EXPECT_EQ(Row_At(page, 4119)[2], "2795 11 plain 5");
    // 13 rows of the intake, 13 of the exhaust: without lift 20, and without lift 16.
    EXPECT_EQ(Row_At(page, 4119 + 13 * 264).front(), "1400 10 bold Average");
    EXPECT_EQ(Row_At(page, 4119 + 14 * 264 + 100 + 720 + 13 * 264)[2], "3500 10 bold Total CFM");
}

TEST_F(Sheet_Print, Comments_Stand_Line_By_Line) {
    bench_.Set("Form1.Text38", " C ");
    EXPECT_EQ(Row_At(Page(), 1613).front(), "300 10 bold Test Bore Diameter");
    bench_.Set("Form1.Text38", "Line one\r\n\r\nthree");
    const Drawing page = Page();
    EXPECT_EQ(Row_At(page, 1613), Words{"100 11 plain Line one"});
    EXPECT_EQ(Row_At(page, 1877), Words{}); // an empty line takes its room
    EXPECT_EQ(Row_At(page, 2141), Words{"100 11 plain three"});
    EXPECT_EQ(Row_At(page, 2655).front(), "300 10 bold Test Bore Diameter"); // + 264 + 150 + 100
}

TEST_F(Sheet_Print, Long_Part_Number_Is_Set_Smaller_And_Runs_On) {
    struct Case {
        std::size_t length;
        std::string_view begin;
    };

    // Its room is 7700.
    for (const Case& test :
         {Case{9, "4555 11 plain"}, Case{10, "4500 11 plain"}, Case{69, "4500 11 plain"},
          Case{70, "4500 10 plain"}, Case{77, "4500 9 plain"}, Case{200, "4500 9 plain"}}) {
        bench_.Set("Form1.Text102(0)", std::string(test.length, 'P'));
        EXPECT_EQ(Row_At(Page(), 1613).back(),
                  std::string(test.begin) + " " + std::string(test.length, 'P'));
    }
}

TEST_F(Sheet_Print, Title_Line_Breaks_In_Steps_Of_Two) {
    // 12050 wide, so 120 characters of 100 fit; the search keeps the length's parity.
    struct Case {
        std::size_t length;
        std::vector<std::size_t> lines;
    };

    for (const Case& test : {Case{1, {}}, Case{120, {120}}, Case{121, {119, 2}},
                             Case{122, {120, 2}}, Case{241, {119, 120, 2}}}) {
        bench_.Set("Form1.Text39", std::string(test.length, 'n'));
        Words expected;
        double y = 12909; // 12859 and the gap
        const Drawing page = Page();
        for (const std::size_t line : test.lines) {
            EXPECT_EQ(Row_At(page, y), Words{"100 10 plain " + std::string(line, 'n')});
            y += 240;
        }
        EXPECT_EQ(Row_At(page, y), Words{});
    }
}

TEST_F(Sheet_Print, Row_That_Does_Not_Fit_Begins_A_New_Page) {
    std::string comments = "first";
    for (int line = 1; line < 100; ++line) {
        comments += "\r\nline";
    }
    bench_.Set("Form1.Text38", comments);
    const Pages pages = All_Pages();
    ASSERT_EQ(pages.size(), 2U);
    // The 79th line ends at 1613 + 79 x 264 = 22469, the 80th would end beyond 22628.
    EXPECT_EQ(In_Words(pages[0]).back(), "100 22205 11 plain line");
    EXPECT_EQ(In_Words(pages[1]).front(), "100 0 11 plain line");
}

TEST(Paper_Sizes, Pages_Come_Out_Smaller_But_Not_Unreadable) {
    EXPECT_NEAR(Page_End({.width = 12240, .height = 15840}), 22628.57, 0.01);
    EXPECT_NEAR(Page_End({.width = 6100, .height = 8000}), 16000, 0.01); // half the width
    Drawing page;
    page.Line(0, 18000, 100, 18000, 0, 1);
    EXPECT_NEAR(Scale_To_Fit(page, {.width = 12240, .height = 9000}), 0.5, 1e-9);
    EXPECT_NEAR(Scale_To_Fit(page, {.width = 6100, .height = 15840}), 0.5, 1e-9);
    EXPECT_EQ(Scale_To_Fit(Drawing(), {.width = 20000, .height = 20000}), 1); // never larger
}

TEST_F(Sheet_Print, Command_Calculates_And_Prints) {
    bench_.Set("Form1.Text106(17)", "71.6");
    EXPECT_EQ(bench_.Click("Form1.Print_Sheet"), Events{});
    const auto documents = bench_.printers.Take_Documents();
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].device, "Laser");
    EXPECT_NE(Place_Of_Text(documents[0].pages[0], bench_.Get("Form1.Text102(17)")), "none");
}

} // namespace

} // namespace kestrum
