#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

const std::string problem =
    "plain box: Problem Reading Flow File -- May Not have all needed Information";
const std::string question =
    "plain box [Yes, No]: Will This Flow File be Used With Performance Trends - Engine Analyzer?";
const std::string many_points = "exclamation box: There are more than 10 Data Point. This may "
                                "cuase problems with some software.";
const std::string not_saved = "plain box: Problem - DFW File was Not Saved";

std::string Flow_Data(const std::string& name) {
    return Bytes_Of(KESTRUM_TEST_DATA "/flow/" + name);
}

/// The lines of a `.flw` file with this many equal points.
std::string Equal_Points(int count) {
    const std::string lift = "1 .1\n";
    const std::string flow = "1 50\n";
    std::string points;
    for (const std::string& value : {lift, flow}) {
        for (int point = 0; point < count; ++point) {
            points += value;
        }
    }
    const std::string number = count < 10
                                   ? std::string(1, static_cast<char>('0' + count))
                                   : "1" + std::string(1, static_cast<char>('0' + count - 10));
    return "a\nb\nc\n" + number + "\n1 2.02\n1 28\n" + points + "1 1.6\n1 28\n" + points;
}

class Flow_Import : public ::testing::Test {
protected:
    Events Import(Test_Bench& bench, const std::string& name, std::string_view bytes) {
        path_ = bench.folder.Write(name, bytes);
        bench.platform.Choose(path_);
        Events events = bench.Click("Form1.Import_Flow_Data_Files");
        EXPECT_EQ(events.front(), "chooser to open");
        events.erase(events.begin());
        return events;
    }

    std::string path_;
};

TEST_F(Flow_Import, Merges_The_Two_Sides_By_Lift) {
    Test_Bench bench;
    EXPECT_EQ(Import(bench, "test.flw", Flow_Data("merged_lifts.flw")),
              Events{"plain box: 20 Records Read"});
    Expect_Texts(bench,
                 {{"Form1.Text102(3)", "2.02"},    {"Form1.Text104(3)", "1.6"},
                  {"Form1.Text108(7)", "28.0"},    {"Form1.Text106(6)", "1"},
                  {"Form1.Text39", path_},         {"Form1.Text101(16)", "0"},
                  {"Form1.Text101(17)", "100"},    {"Form1.Text106(17)", "60.5"},
                  {"Form1.Text107(17)", "40.0"},   {"Form1.Text211(17)", "25.0"},
                  {"Form1.Text101(18)", "200"},    {"Form1.Text106(18)", "110.25"},
                  {"Form1.Text107(18)", "0"},      {"Form1.Text211(18)", "0"},
                  {"Form1.Text101(19)", "250"},    {"Form1.Text106(19)", "0"},
                  {"Form1.Text107(19)", "88.125"}, {"Form1.Text211(19)", "25.0"},
                  {"Form1.Text108(20)", "300"},    {"Form1.Text106(20)", "150.0"},
                  {"Form1.Text107(20)", "95.0"},   {"Form1.Text101(21)", "0"},
                  {"Form1.Text207(17)", "0"},      {"Form1.Text102(18)", "110.3"}}); // calculated
}

TEST_F(Flow_Import, Each_Layout_Finds_Its_Points) {
    Test_Bench bench;
    // The ending needs no point; a marker of another case is none.
    EXPECT_EQ(Import(bench, "old_DYN", Flow_Data("sections.dyn")),
              Events{"plain box: 21 Records Read"});
    Expect_Texts(bench, {{"Form1.Text106(18)", "110.0"}, {"Form1.Text107(18)", "80.0"}});
    EXPECT_EQ(Import(bench, "test.dym", Flow_Data("five_sections.dym")),
              Events{"plain box: 25 Records Read"});
    Expect_Texts(bench, {{"Form1.Text106(18)", "110.0"},
                         {"Form1.Text107(17)", "40.0"},
                         {"Form1.Text107(18)", "0"},
                         {"Form1.Text106(6)", "2"},
                         {"Form1.Text108(6)", " 1"}});
    std::string wrong = Flow_Data("merged_lifts.flw");
    wrong.replace(wrong.find("1 2.02"), 1, "2");
    EXPECT_EQ(Import(bench, "test.flw", wrong), Events{"plain box: NO Flow Infomation Found!!!"});
    EXPECT_EQ(bench.Get("Form1.Text106(18)"), "110.0"); // as it stood
}

TEST_F(Flow_Import, Decimal_Commas_And_Flush_Right) {
    Test_Bench bench({.point = ","});
    bench.Click("Main.AligRight");
    EXPECT_EQ(Import(bench, "test.flw", Flow_Data("merged_lifts.flw")),
              Events{"plain box: 20 Records Read"});
    Expect_Texts(bench, {{"Form1.Text102(3)", "2,0200"},
                         {"Form1.Text108(7)", "28,0000"},
                         {"Form1.Text101(19)", "250"},
                         {"Form1.Text107(19)", "88,125"},
                         {"Form1.Text211(19)", "25,0000"},
                         {"Form1.Text39", path_}});
}

TEST_F(Flow_Import, A_Reading_Failure_Keeps_The_Rows) {
    Test_Bench bench;
    const std::string whole = Flow_Data("merged_lifts.flw");
    const std::string cut = whole.substr(0, whole.find("1 60.5"));
    EXPECT_EQ(Import(bench, "cut.flw", cut), (Events{problem, "plain box: 9 Records Read"}));
    Expect_Texts(bench, {{"Form1.Text108(7)", "28.0"},
                         {"Form1.Text101(18)", "100"},
                         {"Form1.Text106(18)", "73"}, // of the stored test
                         {"Form1.Text39", ""}});
    EXPECT_EQ(Import(bench, "empty.flw", ""), (Events{problem, "plain box: 0 Records Read"}));
    std::string letters = whole;
    letters.replace(letters.find("88.125"), 6, "8o");
    EXPECT_EQ(Import(bench, "letters.flw", letters),
              (Events{problem, "plain box: 19 Records Read"}));
}

TEST_F(Flow_Import, Points_Beyond_Rows_And_Places) {
    Test_Bench bench;
    const std::string not_all = "plain box: NOT ALL Flow Infomation Could be Pocessed!!!";
    EXPECT_EQ(Import(bench, "a.flw", Equal_Points(14)), Events{"plain box: 64 Records Read"});
    EXPECT_EQ(Import(bench, "b.flw", Equal_Points(17)),
              (Events{"plain box: 76 Records Read", not_all}));
    EXPECT_EQ(bench.Get("Form1.Text107(30)"), "50.0");
    // Six lines, 18 lifts: the last finds no place.
    EXPECT_EQ(Import(bench, "c.flw", Equal_Points(18)),
              (Events{problem, "plain box: 24 Records Read"}));
}

TEST_F(Flow_Import, A_Bad_Valve_Count_Is_Told_Behind_The_Rows) {
    Test_Bench bench;
    std::string bytes = Flow_Data("five_sections.dym");
    bytes.resize(bytes.rfind("2\n"));
    EXPECT_EQ(Import(bench, "test.dym", bytes + "two\n1\n"),
              (Events{"plain box: 25 Records Read", problem, "plain box: 25 Records Read"}));
    Expect_Texts(bench, {{"Form1.Text106(18)", "110.0"}, {"Form1.Text39", ""}});
}

TEST_F(Flow_Import, The_Chooser_Keeps_The_Entry_That_Was_Picked) {
    Test_Bench bench;
    EXPECT_EQ(bench.Click("Form1.Import_Flow_Data_Files"),
              (Events{"chooser to open", "plain box: No Flow File Selected"}));
    EXPECT_EQ(bench.session.settings.flow_filter_index, 1);
    bench.platform.Pick_Filter_Entry(3);
    bench.platform.Choose(bench.folder.File("none.dym"));
    EXPECT_EQ(bench.Click("Form1.Import_Flow_Data_Files"),
              (Events{"chooser to open", "plain box: No Flow File Selected"}));
    EXPECT_EQ(bench.session.settings.flow_filter_index, 3);
    EXPECT_EQ(bench.session.file.path, bench.folder.File("none.dym"));
}

TEST_F(Flow_Import, Every_Beginning_Of_A_File_Is_Loaded_Or_Refused) {
    Test_Bench bench;
    for (const char* const name : {"merged_lifts.flw", "sections.dyn", "five_sections.dym"}) {
        const std::string whole = Flow_Data(name);
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            const Events events = Import(bench, name, whole.substr(0, length));
            ASSERT_FALSE(events.empty());
            // Behind the rows where only the last valve count is missing.
            const bool refused = events.size() >= 2 && events[events.size() - 2] == problem;
            const bool not_found = events == Events{"plain box: NO Flow Infomation Found!!!"};
            const bool loaded = events.size() == 1 && events.front().ends_with(" Records Read");
            EXPECT_TRUE(refused || not_found || loaded) << name << length << events.front();
        }
    }
}

/// Empties the corrected flow of a sheet but for three rows.
void Put_Three_Rows(Test_Bench& bench) {
    Flow_Sheet& sheet = bench.session.Sheet(1);
    for (int row = 16; row <= 30; ++row) {
        sheet.Text102(row).Set_Text("0");
        sheet.Text103(row).Set_Text("0");
    }
    bench.Set("Form1.Text101(16)", "62.5");
    bench.Set("Form1.Text102(16)", "40.25");
    bench.Set("Form1.Text102(17)", "123.4");
    bench.Set("Form1.Text103(17)", "99.9");
    bench.Set("Form1.Text103(30)", "1200");
}

const std::string three_rows = "5.00\r\n"
                               "T A R V E X - Exported Flow Data From Kestrum Program\r\n"
                               "0\r\n2\r\n2\r\n"
                               "1 2.02\r\n1 28\r\n"
                               "1 0.062500\r\n1 0.050000\r\n"
                               "1 40.250000\r\n1 123.400000\r\n"
                               "1 1.6\r\n1 28\r\n"
                               "1 0.050000\r\n1 1.000000\r\n"
                               "1 99.900000\r\n1 1200.000000\r\n"
                               "1\r\n1\r\n***\r\n***\r\n";

TEST(DFW_Export, Writes_Rows_With_Lift_And_Flow) {
    Test_Bench bench;
    Put_Three_Rows(bench);
    bench.platform.Answer(Box_Answer::No);
    bench.platform.Choose(bench.folder.File("out.dfw"));
    EXPECT_EQ(bench.Click("Form1.Export"), (Events{question, "chooser to save"}));
    EXPECT_EQ(bench.folder.Read("out.dfw"), three_rows + "\r\n");
    bench.platform.Choose(bench.folder.File("more.dfw"));
    bench.Click("Form1.Export"); // answered with Yes
    EXPECT_EQ(bench.folder.Read("more.dfw"),
              three_rows + "Performance Trends ONLY Information\r\nIVol = 203\r\nEVol = 75\r\n"
                           "ILen = 5.37\r\nELen = 2.88\r\n\r\n");
    EXPECT_EQ(bench.session.file.path, bench.folder.File("more.dfw"));
    EXPECT_EQ(bench.Get("Form1.Text39"), "");
}

TEST(DFW_Export, Writes_The_Commas_Of_The_Mode) {
    Test_Bench bench({.point = ","});
    Put_Three_Rows(bench); // with points, which are read as well
    bench.platform.Choose(bench.folder.File("out.dfw"));
    bench.Click("Form1.Export");
    const std::string text = bench.folder.Read("out.dfw");
    EXPECT_NE(text.find("1 2,02\r\n1 28\r\n1 0,062500\r\n"), std::string::npos);
    EXPECT_NE(text.find("1 123,400000\r\n"), std::string::npos);
}

TEST(DFW_Export, Warns_Of_More_Than_Ten_Points) {
    Test_Bench bench; // the stored test has 14
    bench.platform.Answer(Box_Answer::No);
    bench.platform.Choose(bench.folder.File("out.dfw"));
    EXPECT_EQ(bench.Click("Form1.Export"), (Events{question, "chooser to save", many_points}));
    bench.platform.Answer(Box_Answer::Yes);
    bench.platform.Choose(bench.folder.File("out.dfw"));
    EXPECT_EQ(bench.Click("Form1.Export"), (Events{question, "chooser to save"}));
    EXPECT_NE(bench.folder.Read("out.dfw").find("\r\n0\r\n14\r\n14\r\n1 2.02\r\n"),
              std::string::npos);
}

TEST(DFW_Export, A_Failure_Costs_No_File_That_Is_There) {
    Test_Bench bench;
    EXPECT_EQ(bench.Click("Form1.Export"), (Events{question, "chooser to save", not_saved}));
    bench.folder.Write("old.dfw", "old");
    bench.Set("Form1.Text101(30)", "");
    bench.platform.Choose(bench.folder.File("old.dfw"));
    EXPECT_EQ(bench.Click("Form1.Export"), (Events{question, "chooser to save", not_saved}));
    EXPECT_EQ(bench.folder.Read("old.dfw"), "old");
}

TEST(DFW_Export, Reads_Back) {
    Test_Bench bench;
    bench.platform.Choose(bench.folder.File("out.dfw"));
    bench.Click("Form1.Export");
    bench.platform.Choose(bench.folder.File("out.dfw"));
    EXPECT_EQ(bench.Click("Form3.Import_Flow_Data_Files"),
              (Events{"chooser to open", "plain box: 67 Records Read"}));
    Expect_Texts(bench, {{"Form3.Text101(17)", "50"},
                         {"Form3.Text106(17)", "35.8"},
                         {"Form3.Text107(30)", "222.0"}});
}

} // namespace

} // namespace kestrum
