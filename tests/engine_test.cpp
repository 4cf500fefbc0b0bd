#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

TEST(Engine, A_Small_Block_Comes_Out_As_On_Paper) {
    Test_Bench bench;
    EXPECT_EQ(bench.Get("Main.Text104(8)"), "581") << "nothing is calculated at a first start";
    EXPECT_EQ(bench.Click("Main.Command51"), Events{});
    Expect_Texts(bench, {
                            {"Main.Text101(3)", "0.5475"}, // 10.5 x 0.005 + 0.495
                            {"Main.Text102(3)", "616"},    // 0.5475 x 1125 = 615.94
                            {"Main.Text106(3)", "13.36"},  // 4.125^2 x 0.7854 = 13.3641
                            {"Main.Text107(3)", "427.7"},  // 13.3641 x 4 x 8 = 427.65
                            {"Main.Text108(3)", "53.46"},  // 427.7 / 8 = 53.4625
                            {"Main.Text109(3)", "7037"},   // 616 x 2.75 / 0.240721 = 7037.2
                            {"Main.Text110(3)", "7530"},   // 7037 x 1.07 = 7529.6
                            {"Main.Text102(8)", "4691"},   // 4 x 7037 x 2 / 12 = 4691.3
                            {"Main.Text106(8)", "708"},    // 322 x 2.2 / 0.6446 x 0.64464
                            {"Main.Text107(8)", "1.388"},  // -0.747495 + 2.415 - 0.28 = 1.3875
                            {"Main.Text108(8)", "84.7"},   // 1.388 x 61 = 84.668
                            {"Main.Text104(8)", "594"},    // 427.7 x 1.388 = 593.6
                            {"Main.Text105(8)", "700"},    // 594 x 0.88 x 7037 / 5252 = 700.4
                            {"Main.Text109(8)", "1.655"},  // 708 / 427.7 = 1.6554
                            {"Main.Text110(8)", "100.955"} // 1.655 x 61
                        });
}

TEST(Engine, The_Same_Block_In_Metric) {
    Test_Bench bench;
    bench.At("Main.Check2").Set_Value(1);
    bench.Set("Main.Text104(3)", "104.78");
    bench.Set("Main.Text105(3)", "101.6");
    bench.Set("Main.Text103(3)", "1774.19");
    bench.Set("Main.Text103(8)", "9.11802");
    EXPECT_EQ(bench.Click("Main.Command51"), Events{});
    Expect_Texts(bench,
                 {
                     {"Main.Text102(3)", "187.74"},  // 0.5475 x 1125 x 0.3048 = 187.7378
                     {"Main.Text106(3)", "8622.79"}, // 104.78^2 x 0.7854
                     {"Main.Text107(3)", "7.0086"},  // 8622.79 x 101.6 x 8 / 1000000 = 7.008602
                     {"Main.Text108(3)", "0.87608"}, // 7.0086 / 8 = 0.876075
                     {"Main.Text109(3)", "7036"},    // 615.945 x 2.75 / 0.240744 = 7035.8
                     {"Main.Text110(3)", "7529"},    // 7036 x 1.07 = 7528.5
                     {"Main.Text102(8)", "1429.72"}, // 4 x 7036 x 2 / 12 x 0.3048
                     {"Main.Text106(8)", "528"},     // 708.4 x 0.7457 = 528.3
                     {"Main.Text107(8)", "1.881"},   // 1.387505 x 1.3558179 = 1.88120
                     {"Main.Text108(8)", "114.7"},   // 1.881 x 61 = 114.741
                     {"Main.Text104(8)", "804.49"},  // 7.0086 x 61.023744 x 1.881
                     {"Main.Text105(8)", "522"},   // 804.49 / 1.3558 x 0.88 x 7036 / 5252 x 0.7457
                     {"Main.Text109(8)", "1.235"}, // 528 / 427.69 = 1.2345
                     {"Main.Text110(8)", "75.335"} // 1.235 x 61
                 });
}

TEST(Engine, The_User_May_Enter_Mach_Number_Or_Rpm) {
    Test_Bench bench;
    bench.Click("Main.Check1");
    bench.Set("Main.Text101(3)", "0.6");
    bench.Click("Main.Check3");
    bench.Set("Main.Text109(3)", "6500");
    bench.Click("Main.Command51");
    Expect_Texts(bench, {
                            {"Main.Text101(3)", "0.6"},   // as typed, no fixed places
                            {"Main.Text102(3)", "675"},   // 0.6 x 1125
                            {"Main.Text109(3)", "6500"},  // kept
                            {"Main.Text103(3)", "2.318"}, // 0.2407208 x 6500 / 675 = 2.31806
                            {"Main.Text110(3)", "6955"}   // 6500 x 1.07
                        });
}

TEST(Engine, Flush_Right_Fixes_The_Decimals_And_Comma_Mode_The_Mark) {
    Test_Bench right;
    right.Click("Main.AligRight");
    right.Set("Main.Text101(8)", "10");
    right.Click("Main.Command51");
    // 10 x 0.005 + 0.495 = 0.545; 10: -0.678 + 2.3 - 0.28 = 1.342; 0.545 x 1125 = 613.125
    Expect_Texts(
        right,
        {{"Main.Text101(3)", "0.5450"}, {"Main.Text107(8)", "1.342"}, {"Main.Text102(3)", "613"}});
    Test_Bench comma({.point = ","});
    comma.Click("Main.Command51");
    Expect_Texts(comma, {{"Main.Text101(3)", "0,5475"},
                         {"Main.Text107(3)", "427,7"},
                         {"Main.Text110(8)", "100,955"}});
}

TEST(Engine, Cylinders_Left_Out_Are_Eight) {
    for (const std::string_view text : {"", "0"}) {
        Test_Bench bench;
        bench.Set("Main.Text111(3)", text);
        bench.Click("Main.Command51");
        Expect_Texts(bench, {{"Main.Text111(3)", "8"}, {"Main.Text107(3)", "427.7"}});
    }
}

TEST(Engine, A_Field_That_Cannot_Be_Used_Ends_The_Program) {
    struct Case {
        const char* name;
        std::string_view field;
        std::string_view text;
        int error;
        Expected_Text last_written;
        Expected_Text first_kept;
    };

    constexpr Case cases[] = {
        {"CR 1 has no efficiency",
         "Main.Text101(8)",
         "1",
         11,
         {"Main.Text101(3)", "0.5"},
         {"Main.Text106(8)", "740"}},
        {"CR 0",
         "Main.Text101(8)",
         "0",
         11,
         {"Main.Text101(3)", "0.495"},
         {"Main.Text106(8)", "740"}},
        {"a root of a negative CR",
         "Main.Text101(8)",
         "-2",
         5,
         {"Main.Text101(3)", "0.485"},
         {"Main.Text106(8)", "740"}},
        {"blank CR",
         "Main.Text101(8)",
         "",
         13,
         {"Main.Text104(3)", "4.125"},
         {"Main.Text102(3)", "616"}},
        {"blank bore",
         "Main.Text104(3)",
         "",
         13,
         {"Main.Text102(3)", "616"},
         {"Main.Text106(3)", "13.36"}},
        {"no stroke",
         "Main.Text105(3)",
         "0",
         11,
         {"Main.Text108(3)", "0.0"},
         {"Main.Text109(3)", "7037"}},
        {"a foreign mark",
         "Main.Text105(3)",
         "4,0",
         13,
         {"Main.Text106(3)", "13.36"},
         {"Main.Text107(3)", "427.7"}},
        // Only "" and "0" are repaired: here 0 / 0.
        {"cylinders 00",
         "Main.Text111(3)",
         "00",
         6,
         {"Main.Text107(3)", "0.0"},
         {"Main.Text108(3)", "53.46"}},
        {"a bore beyond double",
         "Main.Text104(3)",
         "1E200",
         6,
         {"Main.Text102(3)", "616"},
         {"Main.Text106(3)", "13.36"}},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.Set(c.field, c.text);
        EXPECT_EQ(Error_Of([&] { bench.Click("Main.Command51"); }), c.error) << c.name;
        EXPECT_EQ(bench.Get(c.last_written.address), c.last_written.text) << c.name;
        EXPECT_EQ(bench.Get(c.first_kept.address), c.first_kept.text) << c.name;
    }
}

TEST(Port_Calculators, Take_One_Figure_From_The_Other_Two) {
    struct Case {
        const char* name;
        bool metric;
        std::string_view volume, length, area;
        std::string_view button;
        Expected_Text result;
    };

    constexpr Case cases[] = {
        // 2.43 x 16.387064 x 5.1 = 203.08488
        {"volume", false, "1", "5.1", "2.43", "Main.Command7", {"Main.Text102(9)", "203.08"}},
        // 203 / 2.43 / 16.387064 = 5.09787
        {"length", false, "203", "1", "2.43", "Main.Command8", {"Main.Text104(9)", "5.098"}},
        // 203 / (5.1 x 16.387064) = 2.42898
        {"area", false, "203", "5.1", "1", "Main.Command9", {"Main.Text106(9)", "2.429"}},
        // 1567.74 / 645.16 = 2.43002; x 16.387064 x 5.1 = 203.08504
        {"volume", true, "1", "129.54", "1567.74", "Main.Command7", {"Main.Text102(9)", "203.09"}},
        // 203 / 2.43002 / 16.387064 x 25.4 = 129.48576
        {"length", true, "203", "1", "1567.74", "Main.Command8", {"Main.Text104(9)", "129.486"}},
        // 203 / (5.1 x 16.387064) x 645.16 = 1567.08353
        {"area", true, "203", "129.54", "1", "Main.Command9", {"Main.Text106(9)", "1567.084"}},
        {"no length", false, "203", "0", "2.43", "Main.Command9", {"Main.Text106(9)", "2.43"}},
        {"blank", false, "", "5.1", "2.43", "Main.Command9", {"Main.Text106(9)", "2.43"}},
        {"no number", false, "203", "5.1", "x", "Main.Command7", {"Main.Text102(9)", "203"}},
        {"0 / 0", false, "0", "5.1", "0", "Main.Command8", {"Main.Text104(9)", "5.1"}},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.At("Main.Check2").Set_Value(c.metric ? 1 : 0);
        bench.Set("Main.Text102(9)", c.volume);
        bench.Set("Main.Text104(9)", c.length);
        bench.Set("Main.Text106(9)", c.area);
        EXPECT_EQ(bench.Click(c.button), Events{}) << c.name << ": errors are passed over";
        EXPECT_EQ(bench.Get(c.result.address), c.result.text) << c.name;
        EXPECT_EQ(bench.Get("Main.Text103(3)"), "2.75") << "the row stays by itself";
    }
}

void Expect_Role(Test_Bench& bench, const std::string& column, bool input) {
    for (const char* const row : {"(1)", "(2)", "(3)"}) {
        const Look& look = bench.At(column + row).Present_Look();
        EXPECT_EQ(look.back_colour, input ? 0xFFFFFF : 0x01FFFF) << column << row;
        EXPECT_EQ(look.text_colour, input ? 0 : 0x0000FF) << column << row;
    }
    const Look& value = bench.At(column + "(3)").Present_Look();
    EXPECT_EQ(value.locked, !input) << column;
    EXPECT_EQ(value.tab_stop, input) << column;
    EXPECT_EQ(value.font.name, input ? "Entry" : "Result") << column;
    EXPECT_TRUE(bench.At(column + "(2)").Present_Look().locked) << "captions stay locked";
}

void Expect_Marked(Test_Bench& bench, std::string_view marker, bool marked) {
    const Colour wanted =
        marked ? bench.At("Main.Label2(1)").Present_Look().back_colour : Colour{0xFFFFFF};
    EXPECT_EQ(bench.At(marker).Present_Look().back_colour, wanted) << marker;
}

TEST(Mode_Switches, Exchange_Input_And_Result) {
    Test_Bench bench;
    // Fonts that can be told apart stand for those that the user chose.
    for (const auto& [model, name] :
         {std::pair("Main.Text101(8)", "Entry"), std::pair("Main.Text102(6)", "Result")}) {
        Look look = bench.At(model).Present_Look();
        look.font.name = name;
        bench.At(model).Set_Look(look);
    }
    for (const bool user : {true, false, true}) {
        bench.Click("Main.Check1");
        bench.Click("Main.Check3");
        Expect_Role(bench, "Main.Text101", user);
        Expect_Role(bench, "Main.Text109", user);
        Expect_Role(bench, "Main.Text103", !user);
        Expect_Marked(bench, "Main.Label2(0)", user);
        Expect_Marked(bench, "Main.Label2(7)", user);
        Expect_Marked(bench, "Main.Label2(2)", !user);
    }
    EXPECT_EQ(bench.Get("Main.Text109(3)"), "7037") << "no number changes";
}

} // namespace

} // namespace kestrum
