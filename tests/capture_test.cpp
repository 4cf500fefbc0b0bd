#include "cli/plain_jpeg.h"
#include "drawing/screen_camera.h"
#include "output/screen_capture.h"
#include "platform/clock.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrum {

namespace {

struct Test_Camera : Screen_Camera {
    std::string Picture_Of(const Screen_Shot& shot) override {
        shots.push_back(shot.screen.Name());
        return "picture";
    }

    std::vector<std::string> shots;
};

class Captures : public ::testing::Test {
protected:
    Captures() { bench_.session.camera = &camera_; }

    Test_Bench bench_{{.now = "2026-11-16T09:05:03"}};
    Test_Camera camera_;
};

TEST_F(Captures, Every_Screen_Keeps_A_Picture_Named_After_The_Clock) {
    for (const char* const control :
         {"Form1.PrtSc", "Form50.Command5", "Form60.Command5", "Form70.Command5"}) {
        EXPECT_EQ(bench_.Click(control), (Events{"hide Main", "show Main"})) << control;
    }
    EXPECT_EQ(bench_.Click("Main.Command6"), Events{});
    EXPECT_EQ(camera_.shots, (Events{"Form1", "Form50", "Form60", "Form70", "Main"}));
    EXPECT_EQ(bench_.folder.Read("Flow_Monday_November_16_2026_9_5_3.jpg"), "picture");
    EXPECT_EQ(Capture_Of(bench_.session).source, "");
}

TEST_F(Captures, Hidden_Main_Is_Shown_Behind_The_Capture) {
    bench_.session.Hide(bench_.session.Main());
    static_cast<void>(bench_.Take_Events());
    EXPECT_EQ(bench_.Click("Form1.PrtSc"), Events{"show Main"});
}

TEST_F(Captures, Picture_That_Cannot_Be_Kept_Is_Fatal) {
    std::filesystem::create_directory(bench_.folder.File("Flow_Monday_November_16_2026_9_5_3.jpg"));
    for (const char* const control : {"Form1.PrtSc", "Main.Command6"}) {
        try {
            bench_.Click(control);
            FAIL() << control;
        } catch (const Run_Time_Error& failure) {
            EXPECT_EQ(failure.Number(), 5);
            EXPECT_EQ(failure.Description(), "Cannot save the image. GDI+ Error:7");
        }
    }
    EXPECT_EQ(Capture_Of(bench_.session).source, "");
    EXPECT_EQ(bench_.Take_Events(), Events{"hide Main"});
}

TEST(Clocks, Stand_Still_At_Moments_That_There_Are) {
    Clock clock;
    for (const char* const text :
         {"2026-02-29T10:00:00", "2026-13-01T10:00:00", "2026-01-01T24:00:00",
          "2026-01-01 10:00:00", "2026-01-01T10:00", ""}) {
        EXPECT_FALSE(clock.Stop_At(text)) << text;
    }
    ASSERT_TRUE(clock.Stop_At("2024-02-29T23:59:58"));
    const Moment moment = clock.Now();
    EXPECT_EQ(moment.day_name, "Thursday");
    EXPECT_EQ(moment.month_name, "February");
    EXPECT_EQ(moment.day, 29);
    EXPECT_EQ(moment.second, 58);
    EXPECT_TRUE(clock.Speak("en"));
    EXPECT_FALSE(clock.Speak("no_SUCH"));
    EXPECT_EQ(clock.Now().day_name, "Thursday");
}

TEST(Plain_Jpegs, Hold_One_Colour) {
    using namespace std::string_literals;
    // Grey 128 is level 0 in every component: six bits of 0 for the one block, filled with ones.
    const std::string small = cli::Plain_Jpeg(8, 8, 0x808080);
    EXPECT_TRUE(small.starts_with("\xFF\xD8\xFF\xDB"s));
    EXPECT_TRUE(small.ends_with("\0\x3F\0\x03\xFF\xD9"s));
    // White is level 8 x 127 = 1016, ten bits long: 11001 1111111000 0, then 0 0 0 0.
    EXPECT_TRUE(cli::Plain_Jpeg(1, 1, 0xFFFFFF).ends_with("\xCF\xF0\x0F\xFF\xD9"s));
    EXPECT_EQ(Error_Of([] { static_cast<void>(cli::Plain_Jpeg(0, 5, 0)); }), 481);
    EXPECT_EQ(Error_Of([] { static_cast<void>(cli::Plain_Jpeg(5, 65536, 0)); }), 481);
}

} // namespace

} // namespace kestrum
