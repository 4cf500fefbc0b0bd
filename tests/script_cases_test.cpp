#include "tests/script_run.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

using nlohmann::json;

/// The texts that the `get` lines gave, in their order.
std::vector<std::string> Texts(const Script_Result& result) {
    std::vector<std::string> texts;
    for (const json& event : result.events) {
        if (event.contains("get")) {
            texts.push_back(event.at("text"));
        }
    }
    return texts;
}

std::vector<std::string> Boxes(const Script_Result& result) {
    std::vector<std::string> texts;
    for (const json& event : result.events) {
        if (event.contains("box")) {
            texts.push_back(event.at("box").at("text"));
        }
    }
    return texts;
}

using Strings = std::vector<std::string>;

TEST(Bench_Day, A_Head_Is_Typed_Calculated_Saved_And_Loaded_Again) {
    const Temp_Folder folder;
    const Script_Result first = Run_Script_In(folder, R"(
click Main.Command1
type Form1.Text102(0) AFR 195
type Form1.Text102(3) 2.05
leave Form1.Text102(3)
type Form1.Text106(6) 5
leave Form1.Text106(6)
type Form1.Text106(6) 1
leave Form1.Text106(6)
type Form1.Text101(17) 100
leave Form1.Text101(17)
type Form1.Text106(17) 66..1
leave Form1.Text106(17)
type Form1.Text107(17)
type Form1.Text107(17) 0
leave Form1.Text107(17)
click Form1.Sort
click Form1.Command1
get Form1.Text108(17)
get Form1.Text102(17)
get Form1.Text103(17)
get Form1.Text109(17)
get Form1.Text208(17)
choose afr195.dat
click Form1.Save_Data
exit
)");
    EXPECT_EQ(first.status, 0) << first.fault;
    EXPECT_EQ(Texts(first), (Strings{"100", "66.1", "0.0",
                                     "102.64",   // 66.1 / (2.05 x pi x 0.1) = 102.637
                                     "0.049"})); // 0.1 / 2.05
    EXPECT_EQ(Boxes(first).front(), "Number of Intake Valves Must be 1 to 4");
    EXPECT_EQ(Boxes(first).at(1), "124 Records Written");

    const Script_Result second = Run_Script_In(folder, R"(
get Form1.Text102(0)
choose afr195.dat
click Form2.Load_Data
get Form2.Text102(0)
get Form2.Text106(17)
get Form2.Text109(17)
)");
    EXPECT_EQ(Texts(second), (Strings{"E7TE", "AFR 195", "66.1", "102.64"}));
    EXPECT_EQ(Boxes(second), Strings{"124 Records Read"});
}

TEST(Bench_Day, A_File_With_Commas_Goes_Both_Ways) {
    const Temp_Folder folder;
    const Script_Result saved = Run_Script_In(
        folder, "type Form3.Text102(3) 2,055\nchoose comma.dat\nclick Form3.Save_Data", ",");
    EXPECT_EQ(Boxes(saved), Strings{"124 Records Written"});
    EXPECT_NE(folder.Read("comma.dat").find("Text102_3 = 2,055\r\n"), std::string::npos);
    const Script_Result loaded =
        Run_Script_In(folder, "choose comma.dat\nclick Form1.Load_Data\nget Form1.Text102(3)\n"
                              "get Form1.Text102(9)\nget Form1.Text39");
    // 2.055 / 4 x 1000
    EXPECT_EQ(Texts(loaded), (Strings{"2.055", "513.75", folder.File("comma.dat")}));
}

TEST(Bench_Day, A_Failed_Calculation_Leaves_New_And_Old_Figures) {
    const Script_Result result = Run_Script(R"(
set Form1.Text102(1) 210
set Form1.Text108(7) 0
click Form1.Command1
get Form1.Text102(2)
get Form1.Text110(8)
set Form1.Text108(7) 10
click Form1.Command1
get Form1.Text110(8)
get Form1.Text102(17)
)");
    // 210 / 16.39 / 5.37 = 2.38598; root of 28 / 10 = 1.67332; 35.8 x 1.6733 = 59.904
    EXPECT_EQ(Texts(result), (Strings{"2.386", "1.0", "1.6733", "59.9"}));
    ASSERT_EQ(Boxes(result).size(), 1U);
    EXPECT_TRUE(Boxes(result)[0].starts_with("Error Number 11 -- Division by zero\r\n\r\n"));
}

TEST(Bench_Day, A_Line_That_Nobody_Knows_Stops_The_Loading_If_The_User_Wants) {
    const Temp_Folder folder;
    folder.Write("odd.dat", "Text102_0 = Odd\r\nText102_2 = 2.5\r\nText102_1 = 210\r\n");
    const Script_Result result = Run_Script_In(
        folder, "choose odd.dat\nanswer cancel\nclick Form1.Load_Data\nget Form1.Text102(1)\n"
                "choose odd.dat\nclick Form1.Load_Data\nget Form1.Text102(1)\n"
                "get Form1.Text102(2)\n");
    EXPECT_EQ(Boxes(result),
              (Strings{"Record not Handled -->Text102_2 = 2.5",
                       "Error Loading Flow Data File --- If you have Not edited the file Please "
                       "Contact us!",
                       "Record not Handled -->Text102_2 = 2.5", "3 Records Read"}));
    EXPECT_EQ(Texts(result), (Strings{"203", "210", "2.386"}));
}

TEST(Bench_Day, A_Sound_That_Is_None_Is_Told) {
    const Temp_Folder folder;
    folder.Write("text.wav", "RIFF and no more");
    folder.Write("bell.wav", "RIFF....WAVE");
    const Script_Result result = Run_Script_In(folder, "choose text.wav\nclick Main.Command49\n"
                                                       "choose bell.wav\nclick Main.Command49\n");
    EXPECT_EQ(Boxes(result), Strings{"Problem with your \"WAV\" File"});
}

TEST(Bench_Day, An_Engine_Is_Sized_From_The_Head) {
    const Script_Result result = Run_Script(R"(
type Main.Text101(8) 26
leave Main.Text101(8)
type Main.Text101(8) 11
leave Main.Text101(8)
type Main.Text111(3) 6.
leave Main.Text111(3)
click Main.Command51
get Main.Text101(3)
get Main.Text107(3)
get Main.Text108(3)
get Main.Text107(8)
)");
    EXPECT_EQ(Boxes(result), Strings{"CR Can Not be Greater Than 25"});
    EXPECT_EQ(Texts(result), (Strings{"0.55",    // 11 x 0.005 + 0.495
                                      "320.7",   // 13.3641 x 4 x 6 = 320.74
                                      "53.45",   // 320.7 / 6
                                      "1.43"})); // -0.82038 + 2.53 - 0.28 = 1.42962
    EXPECT_EQ(result.events.at(2), (json{{"beep", true}}));
}

} // namespace

} // namespace kestrum
