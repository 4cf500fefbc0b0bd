#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

Alignment Alignment_Of(Test_Bench& bench, std::string_view address) {
    return bench.At(address).Present_Look().alignment;
}

TEST(Appearance, The_Alignment_Reaches_Inputs_Results_And_Captions) {
    Test_Bench bench;
    bench.Click("Form50.Command1"); // so that the table is there
    static_cast<void>(bench.Take_Events());
    const std::pair<const char*, Alignment> menus[] = {{"Main.AligCenter", Alignment::Center},
                                                       {"Main.AligRight", Alignment::Right},
                                                       {"Main.AligLeft", Alignment::Left}};
    for (const auto& [menu, wanted] : menus) {
        bench.Click(menu);
        for (const std::string_view address :
             {"Main.Text104(3)", "Main.Text104(2)", "Form1.Text106(17)", "Form1.Text113(11)",
              "Form1.Text101(2)", "Form5.Text101(13)", "Form50.Text101(14)",
              "Form50.Text102(16)"}) {
            EXPECT_EQ(Alignment_Of(bench, address), wanted) << menu << " " << address;
        }
        // The captions of the graph stand as they are typed, and a button is no field.
        for (const std::string_view address :
             {"Form50.Text71", "Form50.Text72", "Main.Command51"}) {
            EXPECT_EQ(Alignment_Of(bench, address), Alignment::Left) << menu << " " << address;
        }
    }
}

TEST(Appearance, A_Sheet_Created_Again_Has_The_Fonts_Of_The_Others) {
    Test_Bench bench;
    for (const std::string_view address :
         {"Form1.Text106(17)", "Form2.Text106(17)", "Form4.Text106(17)", "Form5.Text106(17)"}) {
        Look look = bench.At(address).Present_Look();
        look.font = {.name = "Chosen", .size = 11, .bold = true, .italic = true};
        bench.At(address).Set_Look(look);
    }
    bench.Close("Form3");
    EXPECT_EQ(bench.At("Form3.Text106(17)").Present_Look().font,
              (Font{.name = "Chosen", .size = 11, .bold = true, .italic = true}));
    EXPECT_EQ(bench.At("Form3.Text106(18)").Present_Look().font, Font{});
    EXPECT_FALSE(bench.At("Form3.Text106(17)").Present_Look().locked) << "the rest is its own";
}

} // namespace

} // namespace kestrum
