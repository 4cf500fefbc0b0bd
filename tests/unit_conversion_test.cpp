#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

TEST(Unit_Conversion, Dimensions_And_Areas_Of_A_Sheet_Have_Factors_Of_Their_Own) {
    Test_Bench bench;
    bench.Set("Form1.Text102(8)", "5");
    bench.Set("Form1.Text104(8)", "3");
    bench.Set("Form1.Text102(2)", "2");
    bench.Set("Form1.Text104(2)", "1.5");
    bench.Click("Main.Check2");
    Expect_Texts(bench, {{"Form1.Text102(8)", "127.0"},   // 5 x 25.4
                         {"Form1.Text104(8)", "76.2"},    // 3 x 25.4
                         {"Form1.Text102(2)", "1290.32"}, // 2 x 645.16
                         {"Form1.Text104(2)", "967.74"},  // 1.5 x 645.16
                         {"Form1.Text102(3)", "51.308"},  // 2.02 x 25.4
                         {"Form1.Text104(3)", "40.64"}}); // 1.6 x 25.4
    bench.Click("Main.Check2");
    Expect_Texts(bench, {{"Form1.Text102(8)", "5.0"},
                         {"Form1.Text104(8)", "3.0"},
                         {"Form1.Text102(2)", "2.0"},
                         {"Form1.Text104(2)", "1.5"}});
}

TEST(Unit_Conversion, A_Horsepower_Is_745_7_Watts_And_A_Pound_Foot_1_3558179_Newton_Metres) {
    Test_Bench bench;
    for (const std::string_view power :
         {"Main.Text105(8)", "Main.Text106(8)", "Main.Text109(8)", "Main.Text110(8)"}) {
        bench.Set(power, "10000");
    }
    for (const std::string_view torque :
         {"Main.Text104(8)", "Main.Text107(8)", "Main.Text108(8)"}) {
        bench.Set(torque, "10000");
    }
    bench.Click("Main.Check2");
    Expect_Texts(bench, {{"Main.Text105(8)", "7457.0"},
                         {"Main.Text106(8)", "7457.0"},
                         {"Main.Text109(8)", "7457.0"},
                         {"Main.Text110(8)", "7457.0"},
                         {"Main.Text104(8)", "13558.179"},
                         {"Main.Text107(8)", "13558.179"},
                         {"Main.Text108(8)", "13558.179"}});
    bench.Click("Main.Check2");
    Expect_Texts(bench, {{"Main.Text105(8)", "10000.0"}, {"Main.Text104(8)", "10000"}});
}

} // namespace

} // namespace kestrum
