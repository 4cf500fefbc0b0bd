#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

const std::string after_error =
    "\r\n\r\nPlease Save your Data.\r\n\r\nIf you can NOT Find the Reason for this Error. Please "
    "the Sent the Saved Data file and a Print Screen of this Error to Software Support.";
const std::string zero_hint =
    "\r\n\r\nCheck for a Field that has a Value of Zero that should not be Zero";
const std::string overflow_box = "stop box: Error Number 6 -- Overflow" + after_error;
const std::string mismatch_box = "stop box: Error Number 13 -- Type mismatch" + after_error;
const std::string division_box =
    "stop box: Error Number 11 -- Division by zero" + after_error + zero_hint;
const std::string ratio_box =
    "exclamation box: Problem Calculating Exisiting Intake / Exhaust Ratio\r\nOne possible cause "
    "is the Max Lift Value is to Low or Incorrect\r\n\r\nAn example would be Your Max Lift Value "
    "is .65 and You need to ENTER 650 just like you would Enter for the Flow Numbers.\r\n\r\nIf "
    "this is not the case PLEASE Save this data to a file and email it to Customer Support";

void Set_Column(Test_Bench& bench, std::string_view column, std::string_view text) {
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        bench.session.Sheet(1).Array(column)(row).Set_Text(text);
    }
}

TEST(Flow_Calculation, The_Header_Of_The_Sample_Head) {
    Test_Bench bench;
    Expect_Texts(bench, {
                            {"Form1.Text102(2)", "2.306"},    // 203 / 16.39 / 5.37
                            {"Form1.Text104(2)", "1.589"},    // 75 / 16.39 / 2.88
                            {"Form1.Text102(5)", "3.205"},    // 2.02^2 x 0.7854 = 3.20475
                            {"Form1.Text104(5)", "2.011"},    // 1.6^2 x 0.7854 = 2.01062
                            {"Form1.Text102(7)", "1.89"},     // 1.55^2 x 0.7854 = 1.88692
                            {"Form1.Text104(7)", "1.29"},     // 1.28^2 x 0.7854 = 1.28680
                            {"Form1.Text113(7)", "0.7673"},   // 1.55 / 2.02
                            {"Form1.Text115(7)", "0.8"},      // 1.28 / 1.6
                            {"Form1.Text113(8)", "0.505"},    // 2.02 / 4
                            {"Form1.Text115(8)", "0.4"},      // 1.6 / 4
                            {"Form1.Text102(9)", "505.0"},    // 2.02 / 4 x 1000
                            {"Form1.Text103(9)", "400.0"},    // 1.6 / 4 x 1000
                            {"Form1.Text110(8)", "1.0"},      // root of 28 / 28
                            {"Form1.Text111(2)", "0.034336"}, // 0.16 - 0.16 x 0.7854
                            {"Form1.Text112(3)", "0.034336"}, //
                            {"Form1.Text110(2)", "2.499"},    // 1.215 x 2.17 - 4 x 0.034336
                            {"Form1.Text110(3)", "1.698"},    // 1.37 x 1.34 - 4 x 0.034336
                            {"Form1.Text107(4)", "0.78"},     // 2.499 / 3.205
                            {"Form1.Text107(5)", "0.844"},    // 1.698 / 2.011
                            {"Form5.Text107(5)", "0.844"}     // all five at the start
                        });
}

TEST(Flow_Calculation, The_Rows_And_Averages_Of_The_Sample_Head) {
    Test_Bench bench;
    Expect_Texts(
        bench,
        {
            // Lift 0.05 inch, 35.8 and 24.6 cfm.
            {"Form1.Text104(17)", "50"},
            {"Form1.Text109(17)", "112.83"}, // 35.8 / (2.02 x pi x 0.05)
            {"Form1.Text110(17)", "97.88"},  // 24.6 / (1.6 x pi x 0.05)
            {"Form1.Text111(17)", "0.773"},  // 112.83 / 146
            {"Form1.Text112(17)", "0.67"},   // 97.88 / 146
            {"Form1.Text113(17)", "0.687"},  // 24.6 / 35.8
            {"Form1.Text114(17)", "37.3"},   // 35.8 / 60 x 144 / 2.306
            {"Form1.Text115(17)", "37.2"},   // 24.6 / 60 x 144 / 1.589
            {"Form1.Text201(17)", "0.192"},  // see the seat's tests
            {"Form1.Text202(17)", "0.178"},  //
            {"Form1.Text203(17)", "446.7"},  // 35.8 / 0.192337 x 2.4; rounded area: 447.5
            {"Form1.Text204(17)", "330.9"},  // 24.6 / 0.178398 x 2.4; rounded area: 331.7
            {"Form1.text205(17)", "1.277"},  // 35.8 / 0.192 / 146
            {"Form1.Text206(17)", "0.947"},  // 24.6 / 0.178 / 146
            {"Form1.Text208(17)", "0.025"},  // 0.05 / 2.02
            {"Form1.Text209(17)", "0.031"},  // 0.05 / 1.6
                                             // Lift 0.6 inch, beyond a quarter of both diameters.
            {"Form1.Text104(26)", "505.0"},
            {"Form1.Text105(26)", "400.0"},
            {"Form1.Text109(26)", "83.63"}, // 268 / (2.02 x pi x 0.505)
            {"Form1.Text110(26)", "93.8"},  // 188.6 / (1.6 x pi x 0.4)
            {"Form1.Text111(26)", "0.573"},
            {"Form1.Text112(26)", "0.642"},
            {"Form1.Text113(26)", "0.704"},
            {"Form1.Text114(26)", "278.9"},
            {"Form1.Text115(26)", "284.9"},
            {"Form1.Text201(26)", "1.795"},
            {"Form1.Text202(26)", "1.195"},
            {"Form1.Text203(26)", "358.3"},
            {"Form1.Text204(26)", "378.8"},
            // The zero row, and what stands under the header.
            {"Form1.Text109(16)", "0"},
            {"Form1.Text113(16)", "0"},
            {"Form1.Text201(16)", "0"},
            {"Form1.Text106(11)", "2821.2"},
            {"Form1.Text102(11)", "201.5"}, // 2821.2 / 14
            {"Form1.Text107(11)", "2106.0"},
            {"Form1.Text103(11)", "150.4"}, // 2106 / 14
            {"Form1.Text113(10)", "0.755"}, // 0.0011 x 81 - 0.0404 x 9 + 1.029 = 0.7545
            {"Form1.Text113(11)", "0.738"}, // mean of the 11 ratios up to 0.7 inch
            {"Form1.Text113(12)", "0.742"}  // mean of all 14
        });
}

TEST(Flow_Calculation, Warns_Above_A_Ratio_As_Shown_With_Four_Places) {
    const std::string intake_throat =
        "plain box: Caution - The Intake Throat Valve Ratio maybe a little high";
    const std::string exhaust_throat =
        "plain box: Caution - The Exhaust Throat Valve Ratio maybe a little high";
    const std::string intake_bore =
        "plain box: Caution - The Intake Valve Bore Ratio maybe a little high";
    const std::string exhaust_bore =
        "plain box: Caution - The Exhaust Valve Bore Ratio maybe a little high";

    struct Case {
        std::string_view field;
        std::string_view text;
        Expected_Text ratio;
        Events boxes;
    };

    const Case cases[] = {
        // 1.8484 / 2.02 = 0.91505, which shows as 0.915; 1.8485 gives 0.91510.
        {"Form1.Text102(6)", "1.8484", {"Form1.Text113(7)", "0.915"}, {}},
        {"Form1.Text102(6)", "1.8485", {"Form1.Text113(7)", "0.9151"}, {intake_throat}},
        {"Form1.Text104(6)", "1.464", {"Form1.Text115(7)", "0.915"}, {}},
        {"Form1.Text104(6)", "1.4641", {"Form1.Text115(7)", "0.9151"}, {exhaust_throat}},
        {"Form1.Text112(6)", "3.7065", {"Form1.Text113(8)", "0.545"}, {}},
        {"Form1.Text112(6)", "3.706", {"Form1.Text113(8)", "0.5451"}, {intake_bore}},
        {"Form1.Text112(6)", "3.478", {"Form1.Text115(8)", "0.46"}, {intake_bore}},
        {"Form1.Text112(6)", "3.4775", {"Form1.Text115(8)", "0.4601"}, {intake_bore, exhaust_bore}},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.Set(c.field, c.text);
        EXPECT_EQ(bench.Click("Form1.Command1"), c.boxes) << c.text;
        EXPECT_EQ(bench.Get(c.ratio.address), c.ratio.text) << c.text;
        EXPECT_EQ(bench.Click("Form1.Command1"), c.boxes) << "each time";
    }
}

TEST(Flow_Calculation, Corrects_Each_Flow_To_Its_Pressure) {
    struct Case {
        const char* name;
        std::string_view flow, depression, test_pressure;
        std::string_view intake, exhaust; // corrected
        std::string_view swirl;
        std::string_view depression_after;
    };

    // Row 20; corrected to 28 inches of water.
    constexpr Case cases[] = {
        {"as tested", "145", "0", "28", "145.0", "145.0", "1525", "0"},
        // root of 2.8 = 1.6733 at four places; x 145 = 242.6285
        {"other test pressure", "145", "0", "10", "242.6", "242.6", "1525", "0"},
        {"blank depression", "145", "", "10", "242.6", "242.6", "1525", ""},
        {"negative depression", "145", "-25", "10", "242.6", "242.6", "1525", "-25"},
        // root of 28 / 25 = 1.0583005; x 145 = 153.4536, whatever the test pressure
        {"floating depression", "145", "25", "10", "153.5", "153.5", "1525", "25"},
        {"no flow at a depression", "0", "25", "28", "0.0", "0.0", "0", "0"},
        {"a flow that rounds to none", "0.04", "25", "28", "0.0", "0.0", "0", "0"},
        {"no flow at no depression", "0", "0", "28", "0.0", "0.0", "1525", "0"},
        {"blank flow", "", "25", "28", "0", "0", "0", "25"},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        for (const auto& [address, text] : {Expected_Text{"Form1.Text106(20)", c.flow},
                                            {"Form1.Text210(20)", c.depression},
                                            {"Form1.Text108(7)", c.test_pressure}}) {
            bench.Set(address, text);
        }
        EXPECT_EQ(bench.Click("Form1.Command1"), Events{}) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text102(20)"), c.intake) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text207(20)"), c.swirl) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text210(20)"), c.depression_after) << c.name;
        // The exhaust side alike, but swirl is measured on the intake.
        bench.Set("Form1.Text106(20)", "145");
        bench.Set("Form1.Text207(20)", "77");
        bench.Set("Form1.Text107(20)", c.flow);
        bench.Set("Form1.Text211(20)", c.depression);
        EXPECT_EQ(bench.Click("Form1.Command1"), Events{}) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text103(20)"), c.exhaust) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text207(20)"), "77") << c.name;
        EXPECT_EQ(bench.Get("Form1.Text211(20)"), c.depression_after) << c.name;
    }
}

TEST(Flow_Calculation, Holds_The_Lift_At_A_Quarter_Of_The_Diameter) {
    Test_Bench bench;
    bench.Set("Form1.Text101(20)", "0500.0");
    bench.Set("Form1.Text101(21)", "505");
    bench.Set("Form1.Text101(22)", "1000");
    bench.Click("Form1.Command1");
    Expect_Texts(bench, {
                            {"Form1.Text104(20)", "0500.0"}, // a copy of the text as typed
                            {"Form1.Text105(20)", "400.0"},
                            {"Form1.Text104(21)", "505"},   // not below: stays as typed
                            {"Form1.Text104(22)", "505.0"}, // compared as numbers, not as texts
                            {"Form1.Text105(24)", "400"},
                        });
}

TEST(Flow_Calculation, A_Blank_Lift_Passes_Only_Where_Nothing_Flows) {
    Test_Bench bench;
    for (const std::string_view field :
         {"Form1.Text101(20)", "Form1.Text106(20)", "Form1.Text107(20)"}) {
        bench.Set(field, "");
    }
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{});
    for (const std::string_view field :
         {"Form1.Text102(20)", "Form1.Text103(20)", "Form1.Text104(20)", "Form1.Text105(20)",
          "Form1.Text109(20)", "Form1.Text113(20)", "Form1.Text201(20)", "Form1.Text203(20)",
          "Form1.text205(20)", "Form1.Text208(20)"}) {
        EXPECT_EQ(bench.Get(field), "0") << field;
    }
    // With flow the ratio asks for the lift without a guard.
    bench.Set("Form1.Text106(20)", "145");
    bench.Set("Form1.Text109(20)", "old");
    bench.Set("Form1.Text114(20)", "old");
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{mismatch_box});
    Expect_Texts(bench, {{"Form1.Text109(20)", "0"},     // written before the failure
                         {"Form1.Text113(20)", "0.0"},   // 0 / 145, written as well
                         {"Form1.Text114(20)", "old"}}); // behind it
}

TEST(Flow_Calculation, A_Max_Lift_In_Inches_Finds_No_Ratio) {
    Test_Bench bench;
    bench.Set("Form1.Text110(6)", ".65");
    bench.Set("Form1.Text113(12)", "old");
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{ratio_box});
    Expect_Texts(bench, {{"Form1.Text113(11)", "-"}, {"Form1.Text113(12)", "0.742"}});
    bench.Set("Form1.Text110(6)", "50"); // a lift equal to it counts: 24.6 / 35.8
    bench.Click("Form1.Command1");
    EXPECT_EQ(bench.Get("Form1.Text113(11)"), "0.687");
    // Flow without lift counts in the totals but in no ratio.
    bench.Set("Form1.Text106(16)", "10");
    bench.Set("Form1.Text107(16)", "9");
    bench.Click("Form1.Command1");
    Expect_Texts(bench, {{"Form1.Text113(16)", "0.9"},
                         {"Form1.Text113(11)", "0.687"},
                         {"Form1.Text113(12)", "0.742"},
                         {"Form1.Text102(11)", "188.7"}}); // 2831.2 / 15
}

TEST(Flow_Calculation, Mean_Ratios_Are_Taken_From_The_Quotients) {
    Test_Bench bench;
    Set_Column(bench, "Text106", "0");
    Set_Column(bench, "Text107", "0");
    for (const auto& [address, text] : {Expected_Text{"Form1.Text106(17)", "1000"},
                                        {"Form1.Text107(17)", "332.6"},
                                        {"Form1.Text106(18)", "1000"},
                                        {"Form1.Text107(18)", "665.8"}}) {
        bench.Set(address, text);
    }
    EXPECT_EQ(bench.Click("Form1.Command1"), Events{});
    // (0.3326 + 0.6658) / 2 = 0.4992; from the rounded texts it would be 0.4995, which shows as
    // 0.5.
    Expect_Texts(bench, {{"Form1.Text113(17)", "0.333"},
                         {"Form1.Text113(18)", "0.666"},
                         {"Form1.Text113(11)", "0.499"},
                         {"Form1.Text113(12)", "0.499"}});
}

TEST(Flow_Calculation, A_Sheet_Without_Flow_Fails_At_Its_Averages) {
    Test_Bench bench;
    Set_Column(bench, "Text106", "0");
    Set_Column(bench, "Text107", "0");
    EXPECT_EQ(bench.Click("Form1.Command1"), (Events{ratio_box, overflow_box}));
    Expect_Texts(bench, {{"Form1.Text113(11)", "-"},
                         {"Form1.Text113(12)", "0.742"}, // keeps its old text
                         {"Form1.Text106(11)", "0.0"},
                         {"Form1.Text102(11)", "201.5"},
                         {"Form1.Text107(11)", "2106.0"}});
    Set_Column(bench, "Text106", "100");
    EXPECT_EQ(bench.Click("Form1.Command1"), (Events{ratio_box, overflow_box}));
    Expect_Texts(bench, {{"Form1.Text102(11)", "100.0"},
                         {"Form1.Text107(11)", "0.0"},
                         {"Form1.Text103(11)", "150.4"}});
}

TEST(Flow_Calculation, A_Sheet_Without_Exhaust_Flow_Keeps_Its_Old_Exhaust_Average) {
    Test_Bench bench;
    Set_Column(bench, "Text107", "0");
    EXPECT_EQ(bench.Click("Form1.Command1"), (Events{ratio_box, overflow_box}));
    Expect_Texts(bench, {{"Form1.Text106(11)", "2821.2"}, // the intake is averaged first
                         {"Form1.Text102(11)", "201.5"},
                         {"Form1.Text107(11)", "0.0"},
                         {"Form1.Text103(11)", "150.4"}, // 0 / 0 ends here
                         {"Form1.Text113(10)", "0.755"},
                         {"Form1.Text113(11)", "-"},
                         {"Form1.Text113(12)", "0.742"},
                         {"Form1.Text113(26)", "0.0"},
                         {"Form1.Text103(26)", "0.0"},
                         {"Form1.Text115(26)", "0.0"}, // the rows are all done
                         {"Form1.Text204(26)", "0.0"},
                         {"Form1.Text114(26)", "278.9"}});
}

TEST(Flow_Calculation, Tells_Of_A_Failure_And_Keeps_What_It_Wrote) {
    struct Case {
        const char* name;
        std::string_view field, text;
        std::string box;
        Expected_Text kept;
    };

    const Case cases[] = {
        {"no test pressure", "Form1.Text108(7)", "0", division_box, {"Form1.Text110(8)", "1.0"}},
        {"no length", "Form1.Text102(8)", "0", division_box, {"Form1.Text102(2)", "2.306"}},
        {"no valve", "Form1.Text102(3)", "0", division_box, {"Form1.Text113(7)", "0.7673"}},
        {"no number", "Form1.Text102(3)", "2.02x", mismatch_box, {"Form1.Text102(5)", "3.205"}},
        {"foreign mark", "Form1.Text104(1)", "7,5", mismatch_box, {"Form1.Text104(2)", "1.589"}},
        {"blank CR", "Form1.Text110(5)", "", mismatch_box, {"Form1.Text113(10)", "0.755"}},
        {"too large", "Form1.Text102(6)", "1E200", overflow_box, {"Form1.Text102(7)", "1.89"}},
        {"no valves", "Form1.Text108(6)", "0", division_box, {"Form1.Text107(5)", "0.844"}},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.Set(c.field, c.text);
        EXPECT_EQ(bench.Click("Form1.Command1"), Events{c.box}) << c.name;
        EXPECT_EQ(bench.Get(c.kept.address), c.kept.text) << c.name;
    }
    Test_Bench bench;
    bench.Set("Form1.Text106(6)", ""); // valve counts are read outside of that handler
    EXPECT_EQ(Error_Of([&] { bench.Click("Form1.Command1"); }), 13);
}

TEST(Flow_Calculation, Blank_Dimensions_Keep_The_Old_Figures) {
    struct Case {
        std::string_view blank;
        std::string_view kept;
        std::string_view follows; // not guarded by the blank field
    };

    constexpr Case cases[] = {
        {"Form1.Text102(8)", "Form1.Text102(2)", "Form1.Text104(2)"},
        {"Form1.Text104(1)", "Form1.Text104(2)", "Form1.Text102(2)"},
        {"Form1.Text106(1)", "Form1.Text111(2)", "Form1.Text112(2)"},
        {"Form1.Text108(0)", "Form1.Text112(3)", "Form1.Text111(3)"},
        {"Form1.Text106(2)", "Form1.Text110(2)", "Form1.Text110(3)"},
        // The exhaust's area ratio is guarded by its bottom corner, the intake's is not.
        {"Form1.Text108(1)", "Form1.Text107(5)", "Form1.Text107(4)"},
        {"Form1.Text112(6)", "Form1.Text113(8)", "Form1.Text113(7)"},
        {"Form1.Text108(8)", "Form1.Text110(8)", "Form1.Text111(2)"},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.Set(c.blank, "");
        bench.Set(c.kept, "1.23");
        bench.Set(c.follows, "1.23");
        EXPECT_EQ(bench.Click("Form1.Command1"), Events{}) << c.blank;
        EXPECT_EQ(bench.Get(c.kept), "1.23") << c.blank;
        EXPECT_NE(bench.Get(c.follows), "1.23") << c.blank;
    }
}

} // namespace

} // namespace kestrum
