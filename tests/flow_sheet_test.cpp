#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

/// The rows 17 to 30 of a column, blank by blank.
std::string Column(Test_Bench& bench, std::string_view column) {
    std::string texts;
    for (int row = first_test_row; row <= last_lift_row; ++row) {
        texts += bench.session.Sheet(1).Array(column)(row).Text() + " ";
    }
    return texts;
}

void Set_Lifts(Test_Bench& bench, std::initializer_list<std::string_view> lifts) {
    int row = first_test_row;
    for (const std::string_view lift : lifts) {
        bench.session.Sheet(1).Text101(row).Set_Text(lift);
        ++row;
    }
}

TEST(Sort, Moves_The_Inputs_Of_A_Row_Together) {
    Test_Bench bench;
    for (const auto& [address, text] : {Expected_Text{"Form1.Text101(30)", "450"},
                                        {"Form1.Text108(30)", "copy"},
                                        {"Form1.Text106(30)", "in"},
                                        {"Form1.Text107(30)", "ex"},
                                        {"Form1.Text207(30)", "swirl"},
                                        {"Form1.Text210(30)", "d in"},
                                        {"Form1.Text211(30)", "d ex"},
                                        {"Form1.Text102(30)", "derived"}}) {
        bench.Set(address, text);
    }
    EXPECT_EQ(bench.Click("Form1.Sort"), Events{"focus Form1.Text101(16)"});
    EXPECT_EQ(Column(bench, "Text101"), "50 100 150 200 250 300 350 400 450 500 600 700 800 900 ");
    Expect_Texts(bench, {{"Form1.Text108(25)", "copy"},
                         {"Form1.Text106(25)", "in"},
                         {"Form1.Text107(25)", "ex"},
                         {"Form1.Text207(25)", "swirl"},
                         {"Form1.Text210(25)", "d in"},
                         {"Form1.Text211(25)", "d ex"},
                         {"Form1.Text106(26)", "257.4"},
                         {"Form1.Text102(30)", "derived"}}); // stays behind
}

TEST(Sort, Orders_Lifts_And_Sinks_Zeros) {
    struct Case {
        const char* name;
        std::initializer_list<std::string_view> lifts; // from row 17 on, before 450 ... 1000
        std::string_view sorted;
    };

    const Case cases[] = {
        {"as it is", {"50", "100"}, "50 100 150 200 250 300 350 400 500 600 700 800 900 1000 "},
        {"a zero row", {"50", "0"}, "50 150 200 250 300 350 400 500 600 700 800 900 1000 0 "},
        {"blank and unreadable",
         {"", "5o"},
         "150 200 250 300 350 400 500 600 700 800 900 1000  5o "},
        {"numbers, not texts",
         {"1000", "99"},
         "99 150 200 250 300 350 400 500 600 700 800 900 1000 1000 "},
        {"texts stay as typed",
         {"0100.0", "50,5"},
         "50,5 0100.0 150 200 250 300 350 400 500 600 700 800 900 1000 "},
        {"a negative lift from a file",
         {"0", "-5"},
         "-5 150 200 250 300 350 400 500 600 700 800 900 1000 0 "},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        Set_Lifts(bench, c.lifts);
        bench.Click("Form1.Sort");
        EXPECT_EQ(Column(bench, "Text101"), c.sorted) << c.name;
    }
}

TEST(Sort, Keeps_The_Zero_Row_And_Stops_On_All_Zeros) {
    Test_Bench bench;
    bench.Set("Form1.Text101(16)", "999");
    for (int row = first_test_row; row <= last_lift_row; ++row) {
        bench.session.Sheet(1).Text101(row).Set_Text("0");
    }
    bench.Click("Form1.Sort");
    EXPECT_EQ(bench.Get("Form1.Text101(16)"), "999");
}

TEST(Flow_Sheet, The_Pages_Turn_With_The_Focus) {
    Test_Bench bench;
    EXPECT_FALSE(bench.At("Form1.Frame1").Present_Look().visible);
    EXPECT_EQ(bench.Click("Form1.NextPage"), Events{"focus Form1.Text207(30)"});
    EXPECT_TRUE(bench.At("Form1.Frame1").Present_Look().visible);
    EXPECT_EQ(bench.Click("Form1.Exit"), Events{"focus Form1.Text101(16)"});
    EXPECT_FALSE(bench.At("Form1.Frame1").Present_Look().visible);
}

TEST(Flow_Sheet, Lives_As_Long_As_Its_Window) {
    Test_Bench bench;
    EXPECT_EQ(bench.Click("Main.Command3"), (Events{"show Form3", "focus Form3.Text108(7)"}));
    EXPECT_TRUE(bench.session.Sheet(3).caption.ends_with("-- Flow Test 3"));
    bench.Set("Form3.Text102(0)", "Dart 215");
    bench.Set("Form3.Text39", "dart.dat");
    EXPECT_EQ(bench.Click("Form3.subend"), Events{"hide Form3"});
    EXPECT_EQ(bench.Click("Form3.subend"), Events{}) << "it is hidden already";
    EXPECT_EQ(bench.Click("Main.Command3"), (Events{"show Form3", "focus Form3.Text108(7)"}));
    EXPECT_EQ(bench.Get("Form3.Text102(0)"), "Dart 215");

    bench.Click("Main.AligCenter");
    EXPECT_EQ(bench.Close("Form3"), (Events{"hide Form3", "unload Form3"}));
    EXPECT_FALSE(bench.session.Is_Loaded("Form3"));
    Expect_Texts(bench, {{"Form3.Text102(0)", "E7TE"}, // created again, with its stored texts
                         {"Form3.Text39", ""},
                         {"Form3.Text107(4)", "0.812"}, // not calculated
                         {"Form3.Text102(9)", "505"}});
    EXPECT_EQ(bench.At("Form3.Text102(9)").Present_Look().alignment, Alignment::Center);
    EXPECT_EQ(bench.session.Sheet(3).caption, "");
}

TEST(Flow_Sheet, A_Sheet_Created_Again_In_Comma_Mode_Shows_Commas) {
    Test_Bench bench({.point = ","});
    bench.Close("Form2");
    Expect_Texts(bench, {{"Form2.Text102(3)", "2,02"}, {"Form2.Text103(3)", "Ex, Valve"}});
}

} // namespace

} // namespace kestrum
