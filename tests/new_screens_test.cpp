#include "application/variables.h"
#include "screens/geometry.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

struct Place_Case {
    const char* screen;
    double left;
    double top;
};

void Expect_Places(Session& session, std::initializer_list<Place_Case> cases) {
    for (const Place_Case& one : cases) {
        const Twips place = Place_In_Twips(*session.Screen_Named(one.screen));
        EXPECT_EQ(place.left, one.left) << one.screen;
        EXPECT_EQ(place.top, one.top) << one.screen;
    }
}

Surroundings On_Display(int width, int height) {
    Surroundings around;
    around.display = {.width = width, .height = height};
    return around;
}

TEST(New_Screens, Stand_In_The_Middle_Of_The_Display) {
    Test_Bench bench; // 1920 by 1080
    Expect_Places(bench.session, {{"Main", 7800, 4822.5},
                                  {"Form1", 5400, 3540},
                                  {"Form5", 5400, 3540},
                                  {"Form50", 6000, 3682.5},
                                  {"Form60", 6000, 3120}});
    EXPECT_GE(Place_In_Twips(bench.session.Form60()).height, 600 * 15);
    Scripted_Platform platform;
    Session small(platform, platform, On_Display(1024, 600));
    Expect_Places(small, {{"Main", 1080, 1222.5}, {"Form1", -1320, -60}, {"Form60", 0, 0}});
    Session narrow(platform, platform, On_Display(700, 2000));
    Expect_Places(narrow, {{"Main", -1350, 11722.5}, {"Form60", 0, 0}});
}

TEST(New_Screens, Have_The_Pointer_And_The_Alignment_In_Force) {
    Test_Bench bench;
    bench.Click("Main.MouseP");
    bench.Click("Main.AligCenter");
    for (const std::string_view name : {"Form1", "Form2", "Form3", "Form4", "Form5", "Form60"}) {
        bench.Close(name); // so that no sheet is left
    }
    for (const std::string_view name : {"Form3", "Form60"}) {
        EXPECT_TRUE(bench.session.Screen_Named(name)->plain_pointer) << name;
    }
    EXPECT_EQ(bench.At("Form3.Text104(6)").Present_Look().alignment, Alignment::Center);
    EXPECT_EQ(bench.At("Form3.Text38").Present_Look().alignment, Alignment::Center);
    EXPECT_EQ(bench.At("Form3.Command1").Present_Look().alignment, Alignment::Left);
}

TEST(New_Screens, The_Compare_Screen_Has_No_Tip_On_Its_Picture_Button) {
    Test_Bench bench;
    EXPECT_EQ(bench.At("Form50.Command5").Entry().tip, "");
    EXPECT_NE(bench.At("Form50.Command3").Entry().tip, "");
}

TEST(Variables, Tell_What_The_Last_Calculation_Of_A_Sheet_Added_Up) {
    Test_Bench bench;
    const auto value = [&bench](std::string_view name) {
        return std::get<double>(Variable_Named(bench.session, name).value());
    };
    // The stored test: flows up to 285 and 222, Max Lift 700.
    EXPECT_NEAR(value("Total_Flow_In"), 2821.2, 1e-9);
    EXPECT_EQ(value("Count_Flow_In"), 14);
    EXPECT_NEAR(value("Total_Flow_Ex"), 2106, 1e-9);
    EXPECT_EQ(value("Count_Flow_Ex"), 14);
    EXPECT_EQ(value("Count_Ratio_To_Max"), 11);
    EXPECT_EQ(value("Count_Ratio_All"), 14);
    // The exhaust at a lift of 1 inch: the throat limits it.
    EXPECT_NEAR(value("Curtain_Low"), 4.67084, 2e-5);
    EXPECT_NEAR(value("Slant_Length"), 0.957725, 2e-6);
    EXPECT_NEAR(value("Curtain_High"), 4.66871, 2e-5);
    EXPECT_NEAR(value("Effective_Area"), 1.194933, 2e-6);
    bench.Set("Form1.Text106(30)", "");
    bench.Set("Form1.Text101(29)", "0");
    bench.Click("Form1.Command1");
    EXPECT_EQ(value("Count_Flow_In"), 13);
    EXPECT_EQ(value("Count_Flow_Ex"), 14);
    EXPECT_EQ(value("Count_Ratio_All"), 12) << "without the blank flow and the zero lift";
    const double above_limit = value("Sum_Ratio_All") - value("Sum_Ratio_To_Max");
    EXPECT_NEAR(above_limit, 0.734043, 1e-6) << "207 / 282 at 800, which alone is left";
}

} // namespace

} // namespace kestrum
