#include "application/undo_history.h"
#include "graph/table_age.h"
#include "platform/file_store.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kestrum {

namespace {

TEST(Result_Age, Results_Are_Old_From_An_Edit_Until_Their_Calculation) {
    Test_Bench bench;
    Screen& sheet = bench.session.Sheet(1);
    EXPECT_FALSE(sheet.Results_Are_Old());
    bench.Set("Form1.Text102(0)", "Iron head");
    EXPECT_FALSE(sheet.Results_Are_Old()) << "no figure follows from the part number";
    bench.Set("Form1.Text106(20)", "146");
    EXPECT_TRUE(sheet.Results_Are_Old());
    EXPECT_FALSE(bench.session.Sheet(2).Results_Are_Old());
    bench.Set("Form1.Text106(20)", "145");
    EXPECT_FALSE(sheet.Results_Are_Old()) << "the figures are those that were calculated with";
    bench.Set("Form1.Text106(20)", "146");
    static_cast<void>(bench.Click("Main.Check2"));
    EXPECT_TRUE(sheet.Results_Are_Old()) << "other units calculate nothing";
    EXPECT_FALSE(bench.session.Sheet(2).Results_Are_Old());
    static_cast<void>(bench.Click("Form1.Command1"));
    EXPECT_FALSE(sheet.Results_Are_Old());
    bench.Set("Form1.Text104(3)", "");
    EXPECT_EQ(bench.Click("Form1.Command1").size(), 1U) << "the box of a failed calculation";
    EXPECT_TRUE(sheet.Results_Are_Old());
}

TEST(Result_Age, Main_Grows_Old_By_What_Its_Calculation_Reads) {
    Test_Bench bench;
    Screen& main = bench.session.Main();
    bench.Set("Main.Text102(9)", "210"); // the port has calculators of its own
    bench.Set("Main.Text38", "with the new cam");
    EXPECT_FALSE(main.Results_Are_Old());
    static_cast<void>(bench.Click("Main.Check1"));
    EXPECT_TRUE(main.Results_Are_Old()) << "the Mach number is the user's now";
    static_cast<void>(bench.Click("Main.Command51"));
    EXPECT_FALSE(main.Results_Are_Old());
    bench.Set("Main.Text101(3)", "0.55");
    EXPECT_TRUE(main.Results_Are_Old());
}

TEST(Result_Age, A_Comparison_Shows_Which_Figures_Its_Last_Calculation_Has_Not_Written) {
    Test_Bench bench;
    const auto is_left = [&](std::string_view address) { return bench.At(address).Is_Left(); };
    static_cast<void>(bench.Click("Form50.Option3(3)")); // Port Energy fills all columns
    static_cast<void>(bench.Click("Form50.Command1"));
    EXPECT_FALSE(is_left("Form50.Text109(20)"));
    bench.Set("Form2.Text207(20)", "0");                  // of which no percentage can be taken
    static_cast<void>(bench.Click("Form50.Option3(15)")); // % Swirl
    EXPECT_TRUE(bench.session.Form50().Results_Are_Old());
    static_cast<void>(bench.Click("Form50.Command1"));
    EXPECT_FALSE(bench.session.Form50().Results_Are_Old());
    EXPECT_FALSE(is_left("Form50.Text102(20)"));
    std::string left;
    for (const Control& control : bench.session.Form50().Controls()) {
        if (control.Is_Left() && control.Index() == 20) {
            left += std::string(control.Entry().array) + " ";
        }
    }
    EXPECT_EQ(left, "Text109 Text110 ") << "they show the energies of before";
}

TEST(Result_Age, A_Comparison_Grows_Old_When_A_Test_Of_It_Holds_Other_Figures) {
    Test_Bench bench;
    Undo_History history(bench.session);
    Screen& table = bench.session.Form50();
    const auto is_old = [&] {
        Note_Age_Of_Table(bench.session);
        return table.Results_Are_Old();
    };
    const auto step = [&](const auto& act) {
        history.Begin();
        act();
        history.End("Step");
    };
    const auto flow = [&](std::string_view sheet, std::string_view text) {
        bench.Set(std::string(sheet) + ".Text106(20)", text);
        static_cast<void>(bench.Click(std::string(sheet) + ".Command1"));
    };
    EXPECT_FALSE(is_old()) << "nothing has been compared";
    step([&] { static_cast<void>(bench.Click("Form50.Command1")); });
    EXPECT_FALSE(is_old());
    bench.Set("Form1.Text102(0)", "Iron");
    step([&] { flow("Form3", "99"); });
    EXPECT_FALSE(is_old()) << "neither the name nor another test stands in the table";
    step([&] { flow("Form2", "99"); });
    EXPECT_TRUE(is_old());
    ASSERT_TRUE(history.Undo());
    EXPECT_FALSE(is_old()) << "the figures of the table are back";
    ASSERT_TRUE(history.Redo());
    step([&] { static_cast<void>(bench.Click("Form50.Command1")); });
    EXPECT_FALSE(is_old());
    ASSERT_TRUE(history.Undo());
    EXPECT_TRUE(is_old()) << "the table of before, and the test of today";
    ASSERT_TRUE(history.Redo());
    static_cast<void>(bench.Click("Main.Check2"));
    EXPECT_TRUE(is_old()) << "the sheets are metric, the table is not";
    static_cast<void>(bench.Click("Form50.Command1"));
    EXPECT_FALSE(table.Results_Are_Old()) << "also before the next look";
    EXPECT_FALSE(is_old());
    static_cast<void>(bench.Close("Form1"));
    EXPECT_TRUE(is_old());
}

TEST(Result_Age, Undo_Brings_The_Age_Back_As_Well) {
    Test_Bench bench;
    Undo_History history(bench.session);
    Screen& sheet = bench.session.Sheet(1);
    bench.Set("Form1.Text106(20)", "146");
    history.Begin();
    static_cast<void>(bench.Click("Form1.Command1"));
    history.End("Calculate");
    ASSERT_TRUE(history.Undo());
    EXPECT_TRUE(sheet.Results_Are_Old());
    ASSERT_TRUE(history.Redo());
    EXPECT_FALSE(sheet.Results_Are_Old());
}

TEST(Result_Age, A_Sheet_Is_Unsaved_From_An_Edit_Until_A_File_Holds_It) {
    Test_Bench bench;
    Screen& sheet = bench.session.Sheet(1);
    EXPECT_FALSE(sheet.Is_Unsaved());
    bench.Set("Form1.Text38", "second run");
    EXPECT_TRUE(sheet.Is_Unsaved());
    static_cast<void>(bench.Click("Form1.Command1"));
    EXPECT_TRUE(sheet.Is_Unsaved());
    const std::string path = bench.folder.File("run.dat");
    bench.platform.Choose(path);
    static_cast<void>(bench.Click("Form1.Save_Data"));
    EXPECT_FALSE(sheet.Is_Unsaved());
    bench.Set("Form1.Text38", "third run");
    bench.platform.Choose("/nowhere/run.dat");
    static_cast<void>(bench.Click("Form1.Save_Data"));
    EXPECT_TRUE(sheet.Is_Unsaved()) << "nothing was written";
    bench.platform.Choose(path);
    static_cast<void>(bench.Click("Form1.Load_Data"));
    EXPECT_FALSE(sheet.Is_Unsaved());
}

TEST(Result_Age, Follows_From_The_Inputs_Whatever_Way_They_Came) {
    Test_Bench bench;
    Screen& sheet = bench.session.Sheet(1);
    Screen& other = bench.session.Sheet(2);
    const Screen_State start = sheet.Present_State();
    std::minstd_rand chance; // NOLINT(*-msc*) the same changes in every run
    for (int round = 0; round < 2000; ++round) {
        Control& control = sheet.Controls()[chance() % sheet.Controls().size()];
        Look look = control.Present_Look();
        switch (chance() % 5) {
        case 0:
            control.Append_Text("1");
            break;
        case 1:
            look.locked = !look.locked;
            control.Set_Look(look);
            break;
        case 2:
            control.Set_Left(chance() % 2 == 0);
            break;
        default:
            control.Set_Text(chance() % 2 == 0 ? "12,5" : "12.5");
        }
    }
    EXPECT_TRUE(sheet.Results_Are_Old());
    sheet.Note_Calculation();
    sheet.Note_Saved();
    EXPECT_TRUE(std::ranges::none_of(sheet.Controls(), &Control::Is_Left));
    const Screen_State changed = sheet.Present_State();
    other.Set_State(changed); // each control in one step
    EXPECT_FALSE(other.Results_Are_Old());
    EXPECT_FALSE(other.Is_Unsaved());
    sheet.Set_State(start);
    EXPECT_FALSE(sheet.Results_Are_Old());
    EXPECT_FALSE(sheet.Is_Unsaved());
}

TEST(Lift, One_In_Inches_Is_Told_In_US_Units_Alone) {
    Test_Bench bench;
    const auto news_of = [&](std::string_view lift) {
        bench.Set("Form1.Text101(18)", lift);
        bench.session.file.news.clear();
        static_cast<void>(bench.Leave("Form1.Text101(18)"));
        return bench.session.file.news;
    };
    EXPECT_EQ(news_of(".100"), "Lifts are in thousandths of an inch: 100 for .100");
    EXPECT_EQ(news_of("0.0625"), "Lifts are in thousandths of an inch: 62.5 for 0.0625");
    for (const char* const lift : {".", "x", "0", "1", "100"}) {
        EXPECT_EQ(news_of(lift), "") << lift;
    }
    static_cast<void>(bench.Click("Main.Check2"));
    EXPECT_EQ(news_of(".5"), "") << "half a millimetre is a lift";
    static_cast<void>(bench.Take_Events());
}

} // namespace

} // namespace kestrum
