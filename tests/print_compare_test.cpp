#include "output/compare_print.h"
#include "output/print_state.h"
#include "tests/print_test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

using Words = std::vector<std::string>;

class Compare_Print : public ::testing::Test {
protected:
    Drawing Page() { return Compare_Pages(bench_.session, Paper{}).front(); }

    /// The row with the names of the tests, the From name of a length.
    Words Names(std::size_t length) {
        bench_.Click("Form50.Command1");
        bench_.Set("Form50.Text102(10)", "Test " + std::string(length - 5, 'N'));
        bench_.Set("Form50.Text104(10)", "To");
        return Row_At(Page(), 1613);
    }

    Print_Bench bench_;
};

TEST_F(Compare_Print, Table_Stands_Row_By_Row) {
    bench_.Click("Form50.Command1");
    bench_.Set("Form50.Text101(10)", "");
    bench_.Set("Form50.Text110(16)", "12345");
    bench_.Set("Form50.Text101(30)", "500");
    const Drawing page = Page();
    // Six rows of 240 below 1513 + 100.
    EXPECT_EQ(Row_At(page, 3053).back(), "10275 11 plain 12345");
    EXPECT_EQ(Row_At(page, 6749).front(), "485 11 plain 500"); // 14 x 264 further
}

TEST_F(Compare_Print, Long_Name_Takes_The_Room_Of_Its_Neighbours) {
    const auto name = [](std::size_t n) { return std::string(n, 'N'); };
    EXPECT_EQ(Names(21), (Words{"1250 10 bold Test " + name(16), "3850 10 bold To"}));
    EXPECT_EQ(Names(22), (Words{"1200 10 bold Test " + name(17), "3850 10 bold To"}));
    EXPECT_EQ(Names(24), (Words{"550 10 bold Test " + name(19), "3850 10 bold To"}));
    EXPECT_EQ(Names(34), (Words{"600 10 bold Test " + name(29), "4950 10 bold To"}));
    EXPECT_EQ(Names(46), (Words{"250 10 bold " + name(41), "4950 10 bold To"}));
    EXPECT_EQ(Names(51), (Words{"230 9 bold " + name(46), "4950 10 bold To"}));
    EXPECT_EQ(Names(58), (Words{"180 8 bold " + name(53), "4950 10 bold To"}));
    EXPECT_EQ(Names(60), (Words{"100 8 bold " + name(55), "4950 10 bold To"}));
    EXPECT_EQ(Names(61), (Words{"100 10 bold Test " + name(56), "2200 10 bold To"}));
}

TEST_F(Compare_Print, Logo_In_The_Middle_Is_Painted_Twice) {
    bench_.Take_Logo();
    bench_.Click("Main.Option4(1)");
    const Words words = In_Words(Page());
    EXPECT_EQ(words[words.size() - 2], "picture 0 7013 960 720");
    EXPECT_EQ(words.back(), "picture 0 7013 960 720");
}

TEST_F(Compare_Print, Button_Fills_The_Table_First) {
    bench_.Click("Form50.Option3(9)");
    bench_.Set("Form50.Text102(20)", "stale");
    EXPECT_EQ(bench_.Click("Form50.Command3"), Events{});
    const auto documents = bench_.printers.Take_Documents();
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(Place_Of_Text(documents[0].pages[0], "stale"), "none");
}

class Printer_Choice : public ::testing::Test {
protected:
    std::string Device() {
        bench_.Click("Form60.Command2");
        const auto documents = bench_.printers.Take_Documents();
        return documents.empty() ? "none" : documents.back().device;
    }

    Print_Bench bench_;
};

TEST_F(Printer_Choice, Chosen_Printer_Is_In_Force_For_All_Prints) {
    bench_.Click("Main.Load_Printer_Info");
    EXPECT_EQ(bench_.At("Main.Combo1").Items(), (std::vector<std::string>{"Laser", "Ink"}));
    EXPECT_EQ(bench_.Get("Main.Combo1"), "Laser");
    EXPECT_TRUE(bench_.At("Main.Frame99").Present_Look().visible);
    bench_.Set("Main.Combo1", "Ink");
    bench_.Click("Main.Combo1");
    EXPECT_EQ(Device(), "Laser"); // picked, but not in force yet
    bench_.Click("Main.Got_Printer");
    EXPECT_FALSE(bench_.At("Main.Frame99").Present_Look().visible);
    EXPECT_EQ(Device(), "Ink");
    bench_.Set("Main.Combo1", "Gone");
    bench_.Click("Main.Combo1");
    bench_.Click("Main.Got_Printer");
    EXPECT_EQ(Device(), "Ink");
}

TEST_F(Printer_Choice, Printer_That_Has_Gone_Is_Told) {
    Print_Of(bench_.session).printer = "Gone";
    for (const char* const print : {"Form1.Print_Sheet", "Form50.Command3", "Form60.Command2"}) {
        EXPECT_EQ(bench_.Click(print), Events{"exclamation box: Printer error"}) << print;
    }
    cli::Headless_Printers none({});
    bench_.session.printers = &none;
    Print_Of(bench_.session).printer.clear();
    EXPECT_EQ(bench_.Click("Form1.Print_Sheet"), Events{"exclamation box: Printer error"});
    bench_.Click("Main.Load_Printer_Info");
    EXPECT_EQ(bench_.Get("Main.Combo1"), "");
}

} // namespace

} // namespace kestrum
