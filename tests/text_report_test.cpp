#include "application/events.h"
#include "output/padding.h"
#include "output/text_report.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace kestrum {

namespace {

using Lines = std::vector<std::string>;

const std::string notes = "Pressing the . key will cause this Page to be Written to a Disk File."
                          "\r\n\r\n              Please Press anyother key to exit this window."
                          "\r\n\r\n";

/// The report screen with nothing ticked.
class Text_Report : public ::testing::Test {
protected:
    explicit Text_Report(const Bench_Options& options = {}) : bench_(options) {
        bench_.Click("Form70.Clear");
    }

    void Tick(std::initializer_list<int> columns) {
        for (const int column : columns) {
            bench_.session.Form70().Check2(column).Set_Value(1);
        }
    }

    /// Makes the report and gives its lines behind the notes.
    Lines Report() {
        events_ = bench_.Click("Form70.Command2");
        std::string_view rest = Report_Of(bench_.session).text;
        EXPECT_TRUE(rest.starts_with(notes));
        rest.remove_prefix(notes.size());
        Lines lines;
        for (std::size_t end = rest.find("\r\n"); end != std::string_view::npos;
             end = rest.find("\r\n")) {
            lines.emplace_back(rest.substr(0, end));
            rest.remove_prefix(end + 2);
        }
        EXPECT_EQ(rest, "") << "every line has its end";
        return lines;
    }

    /// The data table of sheet 1 alone, from row 12 on.
    Lines Table() {
        bench_.session.Form70().Check1(0).Set_Value(1);
        Lines lines = Report();
        constexpr std::ptrdiff_t head = 3 + 12 + 3 + 1; // heading, head, seats, a blank line
        lines.erase(lines.begin(), lines.begin() + head);
        return lines;
    }

    void Press(char32_t key) { Press_Raw_Key(bench_.session, bench_.session.Form70().Text38, key); }

    [[nodiscard]] bool Is_Open() { return bench_.session.Form70().Text38.Present_Look().visible; }

    Test_Bench bench_;
    Events events_; // of the last report
};

class Text_Report_With_Commas : public Text_Report {
protected:
    Text_Report_With_Commas() : Text_Report({.point = ","}) {}
};

TEST(Paddings, Count_Characters_And_Never_Cut) {
    struct Case {
        Padding pad;
        int width;
        std::string text;
        std::string padded;
    };

    for (const Case& one : {
             Case{Pad_Left, 8, "505", "505     "},
             Case{Pad_Right, 8, "505", "     505"},
             Case{Pad_Center, 10, "505", "   505    "}, // 7 over: 3 before, 4 behind
             Case{Pad_Center, 10, "5050", "   5050   "},
             Case{Pad_Center, 3, "505", "505"},
             Case{Pad_Left, 15, "Throat area Inch", "Throat area Inch"},
             Case{Pad_Right, 15, "Throat area Inch", "Throat area Inch"},
             Case{Pad_Center, 10, "0.25D In/Ex", "0.25D In/Ex"},
             Case{Pad_Right, 2, "", "  "},
             Case{Pad_Right, 6, "Köpfe", " Köpfe"},
             Case{Pad_Center, 7, "Müller", "Müller "},
         }) {
        std::string line = "|";
        one.pad(line, one.width, one.text);
        EXPECT_EQ(line, "|" + one.padded) << one.text << " in " << one.width;
    }
}

TEST_F(Text_Report, Of_Nothing_Is_The_Two_Notes_And_Opens_The_Viewer) {
    EXPECT_EQ(Report(), Lines{});
    EXPECT_EQ(events_, Events{"focus Form70.Text38"});
    EXPECT_EQ(bench_.Get("Form70.Text38"), notes);
    EXPECT_TRUE(Is_Open());
    bench_.platform.Choose(bench_.folder.File("page.prt"));
    Press('.');
    EXPECT_EQ(bench_.Take_Events(), Events{"chooser to save"});
    EXPECT_EQ(bench_.folder.Read("page.prt"), notes + "\r\n");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(bench_.Get("Form70.Text38") + Report_Of(bench_.session).text, "");
}

TEST_F(Text_Report, A_Page_That_Is_Not_Saved_Is_Told_And_The_Viewer_Closes) {
    const std::string old = bench_.folder.Write("old.prt", "the last page");
    std::filesystem::create_directory(bench_.folder.File("folder"));
    for (const std::optional<std::string>& path :
         {std::optional<std::string>(), std::optional(bench_.folder.File("folder")),
          std::optional(old + "/page.prt")}) {
        Report();
        bench_.platform.Choose(path);
        Press('.');
        EXPECT_EQ(bench_.Take_Events(),
                  (Events{"chooser to save", "exclamation box: Problem - File Not Saved"}));
        EXPECT_FALSE(Is_Open());
    }
    EXPECT_EQ(bench_.folder.Read("old.prt"), "the last page");
}

TEST_F(Text_Report, Closes_At_Every_Key_That_Yields_A_Character) {
    constexpr char32_t ctrl_a = 1;
    constexpr char32_t ctrl_c = 3;
    constexpr char32_t deletes = 127;
    for (const char32_t key : {ctrl_a, ctrl_c, deletes}) {
        Report();
        Press(key);
        EXPECT_TRUE(Is_Open()) << static_cast<unsigned>(key);
    }
    for (const char32_t key : U"x,5 \r\x1B\b\tü\x20AC") {
        if (key != U'\0') {
            Report();
            Press(key);
            EXPECT_FALSE(Is_Open()) << static_cast<unsigned>(key);
        }
    }
}

TEST_F(Text_Report, Shows_The_Engine_In_The_Chosen_Alignment) {
    bench_.session.Form70().Check3(0).Set_Value(1);
    bench_.Set("Main.Text33", "Jeep 4.0");
    bench_.Set("Main.Text38", "");
    Lines lines = Report();
    ASSERT_EQ(lines.size(), 2U + 9 + 1) << "an empty comment takes no line";
    EXPECT_EQ(lines[0], "              Jeep 4.0");
    EXPECT_EQ(lines[5], "0.5475    616              2.75      4.125     4              13.36"
                        "          427.7       53.46     7037     7530    8        ");
    bench_.Set("Main.Text38", "C O M M E N T S\r\nsecond line");
    bench_.Click("Form70.Option1(2)");
    lines = Report();
    EXPECT_EQ(lines[5], "    0.5475              616      2.75     4.125              4"
                        "          13.36       427.7     53.46     7037    7530        8");
    EXPECT_EQ(lines[11], "");
    EXPECT_EQ(lines[12], "C O M M E N T S");
    EXPECT_EQ(lines[13], "second line");
}

TEST_F(Text_Report, Heads_Each_Sheet_Whatever_Is_Ticked) {
    bench_.session.Form70().Check1(0).Set_Value(1);
    bench_.session.Form70().Check1(4).Set_Value(1);
    bench_.Set("Form5.Text39", "C:\\heads\\stock.dat");
    bench_.Set("Form5.Text102(0)", "Zylinderkopf");
    bench_.Click("Form70.Option2(2)"); // the head keeps its own alignment
    const Lines lines = Report();
    EXPECT_EQ(lines[0] + "|" + lines[1] + "|" + lines[2], "|                 Flow Test 1 Data|");
    EXPECT_EQ(lines[3], "         Part # E7TE             Bore Dia 4.11        In corner top 0.4"
                        "         Ex corner top 0.4                                          "
                        "       ");
    EXPECT_EQ(lines[9], "  Throat dia In 1.55        Throat dia Ex 1.28         # Int Valves 1"
                        "            # Exh Valves 1       Max Lift 700      Eng Bore 4.00    "
                        "         ");
    EXPECT_EQ(lines[15], "In. Valve            Ex. Valve           ");
    EXPECT_EQ(lines[16], "Seat Angle       52  Seat Angle       42 ");
    EXPECT_EQ(lines[18], "");
    // Rows 12 to 30 without a column are empty lines.
    const std::size_t second = 19 + 19;
    const Lines heading(lines.begin() + second, lines.begin() + second + 6);
    EXPECT_EQ(heading,
              (Lines{"", "", "                 Flow Test 5 Data", "", "C:\\heads\\stock.dat", ""}));
    EXPECT_TRUE(lines[second + 6].starts_with("         Part # Zylinderkopf       Bore Dia 4.11"))
        << "the twelve letters push the line by two";
}

TEST_F(Text_Report, Columns_Of_Page_2_Begin_Below_The_Row_Of_The_Units) {
    Tick({12, 15, 19, 23, 29});
    const Lines table = Table();
    ASSERT_EQ(table.size(), 19U);
    EXPECT_EQ(table[0], "fps               ") << "two columns of nine";
    EXPECT_EQ(table[1], "Mean     Port     Effective           Floating   ");
    EXPECT_EQ(table[2], "Port     Energy   Valve     Swirl     Depression ");
    EXPECT_EQ(table[3], "Vel In.  In.      Area In.            Exhaust    ");
    EXPECT_EQ(table[4], "0.0      0.0      0         0         0          ");
    EXPECT_EQ(table[5], "37.3     0.379    0.192     1250      0          ");
}

TEST_F(Text_Report, Works_Out_Energy_And_Density_From_The_Texts_Of_The_Sheet) {
    Tick({12, 13, 15, 16, 17, 18});
    // 203 / 16.39 / 1728 / 2 x 0.076 = 0.000272368; x 37.3 x 37.3 = 0.37894; / 2.306 x 12 / 5.37
    // = 0.36722. Exhaust: 75 gives 0.00010063; x 37.2 x 37.2 = 0.13926; / 1.589 x 12 / 2.88.
    EXPECT_EQ(Table()[5], "37.3     37.2     0.379    0.139    0.367    0.365    ");
    bench_.Click("Form70.Option2(1)");
    EXPECT_EQ(Table()[5], "  37.3     37.2     0.379    0.139    0.367    0.365  ");
    bench_.Click("Form70.Option2(2)");
    EXPECT_EQ(Table()[3], "  Vel In.  Vel Ex.      In.      Ex.      In.      Ex.");
    bench_.Click("Main.AligRight"); // three places always: 0.62 of row 18
    EXPECT_TRUE(Table()[6].ends_with("    0.620    1.525    1.626")) << Table()[6];
    bench_.Click("Main.Check2");
    // 11.4 / 0.3048 = 37.402; squared x 0.000272368 = 0.38101; x 1.35581795 = 0.51658
    // / (1488.025 / 645.16) x 12 / (136.398 / 25.4) = 0.500496; exhaust 0.18752 and 0.49176
    EXPECT_TRUE(Table()[5].starts_with("     11.4     11.3    0.517")) << Table()[5];
    EXPECT_TRUE(Table()[5].ends_with("    0.188    0.500    0.492")) << Table()[5];
}

TEST_F(Text_Report, Drops_Rows_Without_Lift_And_Keeps_Those_That_Are_No_Number) {
    Tick({0, 5});
    bench_.Set("Form1.Text101(17)", "0.0");
    bench_.Set("Form1.Text101(19)", "0");
    Lines table = Table();
    ASSERT_EQ(table.size(), 17U);
    EXPECT_EQ(table[4], "0       0         ") << "row 16 stays";
    EXPECT_EQ(table[5], "100     73        ");
    EXPECT_EQ(table[6], "200     145       ");
    bench_.Set("Form1.Text101(17)", "");
    bench_.Set("Form1.Text101(19)", "0,0"); // no number where the point is a point
    table = Table();
    ASSERT_EQ(table.size(), 19U);
    EXPECT_EQ(table[5], "        35.8      ");
    EXPECT_EQ(table[7], "0,0     110       ");
    ASSERT_EQ(events_.size(), 2U) << "the calculation complains, the report does not";
    EXPECT_TRUE(events_[0].find("Error Number 13") != std::string::npos);
}

TEST_F(Text_Report, Spares_Only_The_Velocity_That_Is_The_Text_0) {
    Tick({15, 18});
    // A calculation that fails in its header leaves the velocities as they are.
    bench_.Set("Form1.Text108(7)", "0");
    bench_.Set("Form1.Text114(17)", "0");
    bench_.Set("Form1.Text114(18)", "0.0");
    bench_.Set("Form1.Text115(17)", "");
    EXPECT_EQ(Error_Of([this] { Table(); }), 13) << "a blank velocity is no number";
    EXPECT_EQ(bench_.Take_Events().size(), 1U) << "the box of the calculation";
    EXPECT_FALSE(Is_Open());
    bench_.Set("Form1.Text115(17)", "0");
    const Lines table = Table();
    EXPECT_EQ(table[5], std::string(18, ' '));
    EXPECT_TRUE(table[6].starts_with("0.0      ")) << table[6];
    bench_.Set("Form1.Text104(8)", "0");
    EXPECT_EQ(Error_Of([this] { Table(); }), 11) << "a port without length";
    bench_.session.Form70().Check2(18).Set_Value(0);
    EXPECT_EQ(Table().size(), 19U) << "nobody asked for the density";
}

TEST_F(Text_Report, Comments_Stand_As_They_Are_And_A_Blank_One_Is_A_Line) {
    const Lines without = Table();
    Tick({14});
    bench_.Set("Form1.Text38", "");
    EXPECT_EQ(Table(), without);
    bench_.Set("Form1.Text38", " ");
    Lines wanted = without;
    wanted.emplace_back(" ");
    EXPECT_EQ(Table(), wanted);
    bench_.Set("Form1.Text38", "raised\r\n\r\nport");
    wanted.back() = "raised";
    wanted.insert(wanted.end(), {"", "port"});
    EXPECT_EQ(Table(), wanted);
}

TEST_F(Text_Report, Takes_A_Closed_Sheet_As_It_Was_Delivered) {
    bench_.Set("Form1.Text102(0)", "AFR 195");
    bench_.Close("Form1");
    bench_.session.Form70().Check1(0).Set_Value(1);
    EXPECT_TRUE(Report()[3].starts_with("         Part # E7TE  "));
}

TEST_F(Text_Report_With_Commas, Reads_And_Writes_Commas) {
    Tick({12, 15});
    EXPECT_EQ(Table()[5], "37,3     0,379    ");
    bench_.Set("Form1.Text101(17)", "0,0");
    EXPECT_EQ(Table()[5], "76,0     1,573    ");
    bench_.platform.Choose(bench_.folder.File("page.prt"));
    Press('.'); // the full stop in this mode too
    EXPECT_EQ(bench_.Take_Events(), Events{"chooser to save"});
    EXPECT_TRUE(bench_.folder.Read("page.prt").ends_with("296,6    23,961   \r\n\r\n"))
        << bench_.folder.Read("page.prt");
}

TEST_F(Text_Report, Ticks_And_Unticks_All_But_The_Alignments) {
    bench_.Click("Form70.Option1(1)");
    const auto ticked = [this] {
        return std::ranges::count_if(bench_.session.Form70().Controls(), [](const Control& one) {
            return one.Entry().kind == Control_Kind::Check_Box && one.Value() == 1;
        });
    };
    EXPECT_EQ(ticked(), 0);
    bench_.Click("Form70.Select");
    EXPECT_EQ(ticked(), 1 + 5 + 30);
    EXPECT_EQ(bench_.At("Form70.Option1(1)").Value(), 1);
}

TEST_F(Text_Report, Hints_Last_Until_The_Mouse_Is_Over_The_Bare_Form) {
    const Control& hint = bench_.session.Form70().Label7;
    Hover_Over(bench_.At("Form70.Command2"));
    Hover_Over(bench_.At("Form70.Check2(7)"));
    EXPECT_TRUE(hint.Present_Look().visible);
    EXPECT_EQ(hint.Text(),
              "Create a Text Report using the Selected / Checked Option on this screen.");
    Hover_Over_Form(bench_.session.Form70());
    EXPECT_FALSE(hint.Present_Look().visible);
}

} // namespace

} // namespace kestrum
