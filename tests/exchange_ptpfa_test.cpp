#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <map>

namespace kestrum {

namespace {

/// A file that is blank but for some lines, which count from 0.
std::string Lines(const std::map<int, std::string>& lines, int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
        const auto found = lines.find(line);
        text += (found == lines.end() ? "" : found->second) + "\r\n";
    }
    return text;
}

/// Four points of 13 lines, so three records a side: one at zero lift and two others.
const std::map<int, std::string> zero_lift_first{
    {2, "4"},      {34, "2.05"},  {36, "  "},     {40, " 1.3"}, {63, "28"},    {66, "4.03"},
    {68, "NONE "}, {73, "1"},     {110, "4.1"},   {112, "6"},   {113, "11.5"}, {266, "6"},
    {271, "0"},    {277, "2.5"},  {279, "7"},     {284, ".1"},  {286, "28.0"}, {290, "62.54"},
    {292, " 120"}, {297, "0.2"},  {299, "28"},    {303, "110"}, {305, "900"},  {332, "1.5"},
    {341, "25"},   {345, "51.5"}, {358, "81.56"}, {371, "77"}};

const std::string stop = "stop box: Error Number ";

std::string Not_All_Of(const std::string& path) {
    return "\r\n\r\nSome or All of the Data from PTPFA File " + path + " has Not been Loaded";
}

/// Begins what a calculation says of a sheet without any flow, in two boxes.
const std::string no_ratio =
    "exclamation box: Problem Calculating Exisiting Intake / Exhaust Ratio";
const std::string no_flow = "stop box: Error Number 6 -- Overflow\r\n\r\nPlease Save your Data.";

class PTPFA_Import : public ::testing::Test {
protected:
    Events Import(Test_Bench& bench, const std::string& name, std::string_view bytes) {
        path_ = bench.folder.Write(name, bytes);
        bench.platform.Choose(path_);
        return bench.Click("Form2.Import_PTPFA");
    }

    std::string path_;
};

TEST_F(PTPFA_Import, Takes_The_Flow_At_Zero_Lift_Off_The_Others) {
    Test_Bench bench;
    EXPECT_EQ(Import(bench, "zero.PTI", Lines(zero_lift_first, 380)), Events{"chooser to open"});
    Expect_Texts(bench, {{"Form2.Text102(3)", "2.05"},
                         {"Form2.Text102(6)", "1.55"}, // a blank line leaves the stored text
                         {"Form2.Text106(2)", " 1.3"},
                         {"Form2.Text104(0)", "4.03"},
                         {"Form2.Text102(10)", "No"},
                         {"Form2.Text110(5)", "11.5"},
                         {"Main.Text104(3)", "4.1"},
                         {"Main.Text105(3)", "4"}, // not in the file
                         {"Main.Text111(3)", "6"},
                         {"Main.Text101(8)", "11.5"},
                         {"Form2.Text39", path_}});
    Expect_Texts(bench, {{"Form2.Text101(16)", "0"},
                         {"Form2.Text207(16)", "0"}, // no row is filled before lines 266 and 279
                         {"Form2.Text101(17)", "100"},
                         {"Form2.Text108(17)", "100"},
                         {"Form2.Text106(17)", "60.0"}, // 62.54 - 2.5
                         {"Form2.Text107(17)", "50.0"}, // 51.5 - 1.5
                         {"Form2.Text207(17)", " 120"},
                         {"Form2.Text210(17)", "28.0"}, // another text than 28
                         {"Form2.Text211(17)", "25"},
                         {"Form2.Text101(18)", "200"},
                         {"Form2.Text106(18)", "107.5"},
                         {"Form2.Text107(18)", "80.1"}, // 81.56 - 1.5
                         {"Form2.Text207(18)", "0"},    // the last record's line comes too late
                         {"Form2.Text210(18)", "0"},
                         {"Form2.Text107(19)", "0"},
                         {"Form2.Text101(30)", "0"}});
    EXPECT_EQ(bench.session.file.path, path_);
}

TEST_F(PTPFA_Import, The_Older_Layout_Has_The_Lift_One_Line_Earlier) {
    Test_Bench bench;
    // Two points: records at 258 and 271, then at 293 and 306; no zero lift, so flows stay texts.
    Import(bench, "old.ptf",
           Lines({{2, "2"},
                  {63, "28"},
                  {66, "4"},
                  {68, "open"},
                  {257, ".05"},
                  {264, "30.50"},
                  {266, "5"},
                  {270, ".1"},
                  {277, "61 "},
                  {293, "20"},
                  {306, "41"}},
                 320));
    Expect_Texts(bench, {{"Form2.Text101(17)", "50"},
                         {"Form2.Text106(17)", "30.50"},
                         {"Form2.Text207(17)", "5"},
                         {"Form2.Text101(18)", "100"},
                         {"Form2.Text106(18)", "61 "},
                         {"Form2.Text107(17)", "20"},
                         {"Form2.Text107(18)", "41"},
                         {"Form2.Text102(10)", "Yes"}});
}

TEST_F(PTPFA_Import, Five_Flags_Make_A_Record_Longer) {
    Test_Bench bench;
    // 23 lines a record: one record a side, at 271 and at 326.
    std::map<int, std::string> lines{{2, "2"}, {63, "28"}, {66, "4"}, {68, "none"}};
    for (const int flag : {69, 70, 71, 72, 74}) {
        lines[flag] = "1";
    }
    lines[73] = "1";
    lines[271] = ".3";
    lines[277] = "150";
    lines[326] = "99";
    Import(bench, "flags.pti", Lines(lines, 340));
    Expect_Texts(bench, {{"Form2.Text106(17)", "150"}, {"Form2.Text107(17)", "99"}});
    // "1 " is no flag.
    lines[70] = "1 ";
    Import(bench, "flags.pti", Lines(lines, 340));
    EXPECT_EQ(bench.Get("Form2.Text107(17)"), "0");
}

TEST_F(PTPFA_Import, Texts_Take_The_Separator_Of_The_Mode) {
    Test_Bench bench({.point = ","});
    Import(bench, "zero.pti", Lines(zero_lift_first, 380));
    Expect_Texts(bench, {{"Form2.Text102(3)", "2,05"},
                         {"Form2.Text101(17)", "100"},
                         {"Form2.Text106(17)", "60,0"},
                         {"Form2.Text107(18)", "80,1"},
                         {"Form2.Text210(17)", "28,0"},
                         {"Main.Text104(3)", "4,1"},
                         {"Main.Text101(8)", "11,5"},
                         {"Form2.Text39", path_}});
}

TEST_F(PTPFA_Import, A_Short_File_Leaves_A_Sheet_Without_Flow) {
    Test_Bench bench;
    const Events events = Import(bench, "short.pti", Lines(zero_lift_first, 100));
    ASSERT_EQ(events.size(), 3U);
    EXPECT_TRUE(events[1].starts_with(no_ratio));
    EXPECT_TRUE(events[2].starts_with(no_flow));
    Expect_Texts(
        bench, {{"Form2.Text102(3)", "2.05"}, {"Form2.Text106(17)", "0"}, {"Form2.Text39", path_}});
}

TEST_F(PTPFA_Import, A_Failure_Keeps_What_Was_Stored_And_Calculates_Nothing) {
    Test_Bench bench;
    auto lines = zero_lift_first;
    lines[303] = "x";
    const Events events = Import(bench, "bad.pti", Lines(lines, 380));
    EXPECT_EQ(events,
              (Events{"chooser to open", stop + "13 -- Type mismatch" + Not_All_Of(path_)}));
    Expect_Texts(bench, {{"Form2.Text101(18)", "200"},
                         {"Form2.Text106(17)", "60.0"},
                         {"Form2.Text106(18)", "0"},
                         {"Form2.Text102(17)", "35.8"}, // of the stored test
                         {"Form2.Text39", ""}});
    lines[2] = "";
    EXPECT_EQ(Import(bench, "bad.pti", Lines(lines, 380)).back(),
              stop + "13 -- Type mismatch" + Not_All_Of(path_));
    lines[2] = "3000"; // times 13 lines is beyond 16 bits
    EXPECT_EQ(Import(bench, "bad.pti", Lines(lines, 380)).back(),
              stop + "6 -- Overflow" + Not_All_Of(path_));
}

TEST_F(PTPFA_Import, A_Fifteenth_Point_Has_No_Row) {
    Test_Bench bench;
    std::map<int, std::string> lines{{2, "16"}, {63, "28"}, {66, "4"}, {68, "none"}};
    for (int point = 0; point < 15; ++point) {
        lines[257 + 13 * point] = ".1";
        lines[264 + 13 * point] = "60";
    }
    const Events events = Import(bench, "many.txt", Lines(lines, 600));
    EXPECT_EQ(events.back(),
              stop + "340 -- Control array element '31' doesn't exist" + Not_All_Of(path_));
    EXPECT_EQ(bench.Get("Form2.Text106(30)"), "60");
}

TEST_F(PTPFA_Import, A_Cancel_And_A_Missing_File_Change_Nothing) {
    Test_Bench bench;
    const Events not_loaded{"chooser to open",
                            "exclamation box: Data from PTPFA File has Not been Loaded"};
    EXPECT_EQ(bench.Click("Form2.Import_PTPFA"), not_loaded);
    bench.platform.Choose(bench.folder.File("none.pti"));
    EXPECT_EQ(bench.Click("Form2.Import_PTPFA"), not_loaded);
    EXPECT_EQ(bench.Get("Form2.Text106(17)"), "35.8");
}

TEST_F(PTPFA_Import, Every_Beginning_Of_A_File_Is_Loaded_Or_Refused) {
    Test_Bench bench;
    std::string whole = Lines(zero_lift_first, 372);
    std::erase(whole, '\r');
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const Events events = Import(bench, "cut.pti", whole.substr(0, length));
        const bool refused = events.back() == stop + "13 -- Type mismatch" + Not_All_Of(path_);
        const bool loaded = events.back().starts_with(no_flow) || events.size() == 1;
        EXPECT_TRUE(refused ? events.size() == 2 : loaded) << length << events.back();
    }
}

} // namespace

} // namespace kestrum
