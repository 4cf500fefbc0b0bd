#include "application/variables.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <variant>

namespace kestrum {

namespace {

struct Seat_Case {
    const char* name;
    std::string_view angle, width, throat, lift; // intake; valve 2.02, stem 0.342 inch
    std::string_view area;
};

// With valve D, seat width w at angle a, lift L, r = w cos a; areas in square inches:
//   below the break lift w / sin a:  (D - 2r + L sin a cos a) pi L cos a
//   above it:  pi (D - r) root((L - w sin a)^2 + r^2), at most the throat less the stem.
constexpr Seat_Case seat_cases[] = {
    {"sample seat below its break at 0.0571", "52", "0.045", "1.55", "50", "0.192"},
    {"sample seat above it", "52", "0.045", "1.55", "100", "0.44"}, // below it would be 0.389
    {"sample seat at the throat", "52", "0.045", "1.55", "350", "1.795"},
    {"last lift before the throat", "52", "0.045", "1.55", "300", "1.665"},
    {"wide seat below its break at 0.2828", "45", "0.2", "1.55", "250", "1.034"}, // else 1.052
    {"low areas are not held at the throat", "45", "0.2", "1", "250", "1.034"},
    {"high areas are", "45", "0.2", "1", "300", "0.694"}, // pi / 4 - pi x 0.171^2 = 0.69354
    // The sine of 180 degrees is 3E-15 with these digits of pi: a break lift beyond all lifts.
    {"half a turn", "180", "0.045", "1.55", "50", "-0.331"},
};

TEST(Seat_Geometry, Three_Regimes_Of_Lift) {
    for (const Seat_Case& c : seat_cases) {
        Test_Bench bench;
        bench.Set("Form1.Text202(4)", c.angle);
        bench.Set("Form1.Text202(5)", c.width);
        bench.Set("Form1.Text102(6)", c.throat);
        bench.Set("Form1.Text101(17)", c.lift);
        EXPECT_EQ(bench.Click("Form1.Command1"), Events{}) << c.name;
        EXPECT_EQ(bench.Get("Form1.Text201(17)"), c.area) << c.name;
    }
}

TEST(Seat_Geometry, The_Sample_Reaches_Its_Throats) {
    Test_Bench bench;
    // Intake 1.7951 from 0.35 inch on, exhaust 1.1949 from 0.3 inch on.
    Expect_Texts(bench, {{"Form1.Text201(22)", "1.665"},
                         {"Form1.Text201(23)", "1.795"},
                         {"Form1.Text201(30)", "1.795"},
                         {"Form1.Text202(21)", "1.034"},
                         {"Form1.Text202(22)", "1.195"},
                         {"Form1.Text202(30)", "1.195"}});
}

TEST(Seat_Geometry, Two_Valves_Have_Twice_The_Area) {
    Test_Bench bench;
    bench.Set("Form1.Text106(6)", "2");
    bench.Click("Form1.Command1");
    Expect_Texts(bench, {{"Form1.Text201(17)", "0.385"}, // 2 x 0.192337
                         {"Form1.Text201(30)", "3.59"},  // 2 x 1.795056
                         {"Form1.Text202(17)", "0.178"}});
}

TEST(Seat_Geometry, A_Flat_Seat_Divides_By_Zero) {
    Test_Bench bench;
    bench.Set("Form1.Text204(4)", "0");
    bench.Set("Form1.Text204(17)", "old");
    const Events events = bench.Click("Form1.Command1");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_TRUE(events[0].starts_with("stop box: Error Number 11 -- Division by zero"))
        << events[0];
    EXPECT_TRUE(events[0].ends_with("Value of Zero that should not be Zero")) << events[0];
    Expect_Texts(bench, {{"Form1.Text203(17)", "446.7"}, {"Form1.Text204(17)", "old"}});
}

double Number_Named(const Session& session, std::string_view name) {
    return std::get<double>(Variable_Named(session, name).value());
}

TEST(Seat_Geometry, One_Set_Serves_All_Sheets) {
    Test_Bench bench;
    EXPECT_NEAR(Number_Named(bench.session, "Throat_Limit_In"), 1.7950557767787487, 1e-15);
    EXPECT_NEAR(Number_Named(bench.session, "Throat_Limit_Ex"), 1.194933040126759, 1e-15);
    EXPECT_NEAR(Number_Named(bench.session, "Seat_Sin_In"), 0.7880107536067213, 1e-15);
    EXPECT_NEAR(Number_Named(bench.session, "Seat_Tan_Ex"), 0.9004040442978386, 1e-15);
    EXPECT_NEAR(Number_Named(bench.session, "Seat_Radial_In"), 0.027704766389654658, 1e-15);
    EXPECT_EQ(Number_Named(bench.session, "Seat_Valve_Dia_Ex"), 1.6);

    // A metric sheet is worked out with the seats of the last sheet in inches, here the second's.
    bench.Set("Form2.Text202(4)", "45");
    bench.Set("Form2.Text202(5)", "0.2");
    bench.Click("Form2.Command1");
    bench.At("Main.Check2").Set_Value(1);
    bench.Set("Form1.Text101(17)", "6.35"); // 0.25 inch
    bench.Set("Form1.Text202(4)", "30");    // goes for nothing
    bench.Click("Form1.Command1");
    EXPECT_EQ(bench.Get("Form1.Text201(17)"), "667.2"); // 1.0341684 x 645.16 = 667.204
    EXPECT_EQ(Number_Named(bench.session, "Seat_Angle_In"), 45);
    bench.Close("Form2");
    EXPECT_EQ(Number_Named(bench.session, "Seat_Angle_In"), 45) << "closing the sheet keeps it";
}

} // namespace

} // namespace kestrum
