#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

TEST(Flow_Calculation, Two_Valves_Share_The_Flow) {
    Test_Bench bench;
    bench.Set("Form1.Text106(6)", "1.5"); // half to even: 2
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{});
    Expect_Texts(bench, {{"Form1.Text102(5)", "6.409"},  // 2.02^2 x 0.7854 x 2 = 6.40949
                         {"Form1.Text102(7)", "3.77"},   // 1.88692 x 2 = 3.77385
                         {"Form1.Text109(17)", "56.41"}, // 112.8267 / 2 = 56.4133
                         {"Form1.Text110(17)", "97.88"}});
}

TEST(Flow_Calculation, Flush_Right_And_Comma_Mode_Reach_Every_Figure) {
    Test_Bench right;
    right.Click("Main.AligRight"); // calculates all sheets
    Expect_Texts(right, {{"Form3.Text102(9)", "505.00"},
                         {"Form3.Text104(26)", "505.00"},
                         {"Form3.Text110(8)", "1.0000"},
                         {"Form3.Text112(17)", "0.670"},
                         {"Form3.Text102(11)", "201.5"}});
    Test_Bench comma({.point = ","});
    EXPECT_EQ(comma.Click("Form1.Command1"), Events{});
    Expect_Texts(comma, {{"Form1.Text109(17)", "112,83"},
                         {"Form1.Text203(17)", "446,7"},
                         {"Form1.Text101(3)", "In, Valve"}, // the switch touches captions too
                         {"Form1.Text106(11)", "2821,2"}});
}

TEST(Flow_Calculation, Metric_Sheets_Go_Through_Inches) {
    Test_Bench bench;
    bench.At("Main.Check2").Set_Value(1);
    for (const auto& [address, text] : {Expected_Text{"Form1.Text102(3)", "51.31"},
                                        {"Form1.Text102(8)", "136.4"},
                                        {"Form1.Text101(17)", "1.27"},
                                        {"Form1.Text106(17)", "1.01374"},
                                        {"Form1.Text112(6)", "101.6"},
                                        {"Form1.Text110(6)", "0.02"}}) {
        bench.Set(address, text);
    }
    const Events events = bench.Click("Form1.Command1");
    // The advice does not speak of thousandths here.
    EXPECT_EQ(events,
              Events{"exclamation box: Problem Calculating Exisiting Intake / Exhaust Ratio\r\nOne "
                     "possible cause is the Max Lift Value is to Low or Incorrect\r\n\r\nIf this "
                     "is not the case PLEASE Save this data to a file and email it to Customer "
                     "Support"});
    Expect_Texts(bench,
                 {
                     {"Form1.Text102(2)", "1488.003"}, // 203 / 16.39 / 5.370079 x 645.16
                     {"Form1.Text102(9)", "12.828"},   // 51.31 / 4 = 12.8275
                     {"Form1.Text102(17)", "1.014"},   // three places here
                     {"Form1.Text109(17)", "2061.66"}, // 1.014 / (2.020079 x pi x 0.05) x 645.16
                     {"Form1.Text111(17)", "0.773"},   // 2061.66 / 645.16 / 0.0283168 / 146
                     {"Form1.Text208(17)", "0.025"},   // 1.27 / 51.31
                     {"Form1.Text201(17)", "124.1"},   // 0.192337 x 645.16 = 124.09
                 });
}

} // namespace

} // namespace kestrum
