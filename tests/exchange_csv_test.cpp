#include "exchange/csv_cells.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <ostream>

namespace kestrum {

namespace {

std::string Csv_Data(const std::string& name) {
    return Bytes_Of(KESTRUM_TEST_DATA "/csv/" + name);
}

const std::string csv_refused = "exclamation box: Data from CSV File has Not been Loaded";

class CSV_Import : public ::testing::Test {
protected:
    /// The boxes of an import.
    static Events Import(Test_Bench& bench, std::string_view bytes) {
        bench.platform.Choose(bench.folder.Write("test.csv", bytes));
        Events events = bench.Click("Form1.Import_CSV");
        EXPECT_EQ(events.front(), "chooser to open");
        events.erase(events.begin());
        return events;
    }

    static Events Read(const std::string& count) {
        return {"plain box: " + count + " Records Read"};
    }

    static Events Refused(const std::string& place_and_reason) {
        return {csv_refused + "\r\n\r\n" + place_and_reason};
    }
};

TEST_F(CSV_Import, Takes_All_Columns_Of_Its_Own_Export) {
    Test_Bench bench;
    bench.Set("Form1.Text207(25)", "77");
    EXPECT_EQ(Import(bench, Csv_Data("our_export.csv")), Read("2"));
    Expect_Texts(bench, {{"Form1.Text101(16)", "0"},
                         {"Form1.Text101(17)", "100"},
                         {"Form1.Text108(17)", "100"},
                         {"Form1.Text106(17)", "60.5"},
                         {"Form1.Text107(17)", "40"},
                         {"Form1.Text207(17)", "1250"},
                         {"Form1.Text210(17)", "0"},
                         {"Form1.Text211(17)", "25"},
                         {"Form1.Text102(18)", "109.3"}, // 110.25 x root of 28 / 28.5
                         {"Form1.Text207(18)", "-3"},
                         {"Form1.Text210(18)", "28.5"},
                         {"Form1.Text101(19)", "0"},
                         {"Form1.Text207(25)", "0"}, // the old test is gone
                         {"Form1.Text39", bench.folder.File("test.csv")}});
}

TEST_F(CSV_Import, Sorts_Converts_And_Names_What_It_Passes_Over) {
    Test_Bench bench;
    const Events told{"plain box: 2 Records Read\r\n\r\nColumns Not Used: Bench"};
    EXPECT_EQ(Import(bench, Csv_Data("metric_semicolons.csv")), told);
    Expect_Texts(bench, {{"Form1.Text101(17)", "100"}, // 2.54 mm
                         {"Form1.Text106(17)", "1.25"},
                         {"Form1.Text107(17)", "0.0"}, // an empty cell is 0 and is converted
                         {"Form1.Text101(18)", "200"},
                         {"Form1.Text107(18)", "52.972"}, // 1.5 / 0.02831684659 = 52.97200009
                         {"Form1.Text207(18)", "-7"}});
    Test_Bench commas({.point = ","});
    commas.Click("Main.Check2");
    EXPECT_EQ(Import(commas, Csv_Data("metric_semicolons.csv")), told);
    Expect_Texts(commas, {{"Form1.Text101(17)", "2,54"},
                          {"Form1.Text106(17)", "1,25"},
                          {"Form1.Text107(18)", "1,5"}});
    Import(commas, "lift_in,intake_cfm,exhaust\n0.1,100,2.5\n");
    Expect_Texts(commas, {{"Form1.Text101(17)", "2,54"},
                          {"Form1.Text106(17)", "2,831685"}, // 100 x 0.02831684659
                          {"Form1.Text107(17)", "2,5"}});
    Import(commas, "lift_thou,intake\n1000,2\n");
    EXPECT_EQ(commas.Get("Form1.Text101(17)"), "25,4");
}

TEST_F(CSV_Import, Lifts_Without_A_Unit_Below_Two_Are_Inches) {
    Test_Bench bench;
    EXPECT_EQ(Import(bench, "0.05\t30,5\t20\n,\n1.999\t250\n"),
              Refused("Line 2, Column 1: \",\" is no number"));
    EXPECT_EQ(Import(bench, "\xEF\xBB\xBF"
                            "0.05\t30,5\t20\r1.999\t250"),
              Read("2"));
    Expect_Texts(bench, {{"Form1.Text101(17)", "50"},
                         {"Form1.Text106(17)", "30.5"},
                         {"Form1.Text101(18)", "1999"},
                         {"Form1.Text107(18)", "0"}});
    // One that is not below 2 makes all of them thousandths, in whole numbers.
    EXPECT_EQ(Import(bench, "LIFT\n1.4\n2\n").back(), Read("2").back());
    Expect_Texts(bench, {{"Form1.Text101(17)", "1"}, {"Form1.Text101(18)", "2"}});
    bench.Click("Main.Check2");
    Import(bench, "1.25,2,1\n");
    EXPECT_EQ(bench.Get("Form1.Text101(17)"), "1.25");
}

/// Rows with the lifts 10, 20 and so on, the highest first.
std::string Rows(int count) {
    std::string text = "lift_thou,intake,exhaust\n";
    for (int tens = count; tens > 0; --tens) {
        text += static_cast<char>('0' + tens / 10);
        text += static_cast<char>('0' + tens % 10);
        text += "0,1,1\n";
    }
    return text;
}

TEST_F(CSV_Import, Rows_Find_Their_Places) {
    Test_Bench bench;
    EXPECT_EQ(Import(bench, Rows(14)), Read("14"));
    Expect_Texts(
        bench,
        {{"Form1.Text101(16)", "0"}, {"Form1.Text101(17)", "10"}, {"Form1.Text101(30)", "140"}});
    EXPECT_EQ(Import(bench, Rows(15)), Read("15"));
    Expect_Texts(
        bench,
        {{"Form1.Text101(16)", "10"}, {"Form1.Text101(17)", "20"}, {"Form1.Text101(30)", "150"}});
    EXPECT_EQ(Import(bench, Rows(14) + "0,3\n"), Read("15"));
    Expect_Texts(
        bench,
        {{"Form1.Text101(16)", "0"}, {"Form1.Text106(16)", "3"}, {"Form1.Text101(30)", "140"}});
    EXPECT_EQ(Import(bench, Rows(16)), Refused("Line 17, Column 1: there are more than 15 rows"));
    // Rows of zeros alone are a table's unused lines.
    EXPECT_EQ(Import(bench, "0,0,0\n500,1,1\n0,2\n0,0\n"), Read("4"));
    EXPECT_EQ(Import(bench, "intake,lift\n1,5\n2,0\n3,0\n"),
              Refused("Line 4, Column 2: there is a second row with lift 0"));
}

struct Refusal {
    const char* bytes;
    const char* box;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << refusal.box;
}

class CSV_Refusal : public ::testing::TestWithParam<Refusal> {};

TEST_P(CSV_Refusal, Leaves_The_Sheet_As_It_Stood) {
    Test_Bench bench;
    bench.platform.Choose(bench.folder.Write("bad.csv", GetParam().bytes));
    EXPECT_EQ(bench.Click("Form1.Import_CSV"),
              (Events{"chooser to open", csv_refused + "\r\n\r\n" + GetParam().box}));
    Expect_Texts(bench,
                 {{"Form1.Text101(17)", "50"}, {"Form1.Text106(30)", "285"}, {"Form1.Text39", ""}});
}

INSTANTIATE_TEST_SUITE_P(
    Of_Whole_Files, CSV_Refusal,
    ::testing::Values(
        Refusal{"", "Line 1, Column 1: there is no row"},
        Refusal{"lift,intake\n\n", "Line 2, Column 1: there is no row"},
        Refusal{"height,intake\n1,2\n", "Line 1, Column 1: there is no lift column"},
        Refusal{"lift_in,intake,lift_mm\n", "Line 1, Column 3: the column \"lift_mm\" comes twice"},
        Refusal{"lift,intake\n100,1\n,2\n", "Line 3, Column 1: the lift is empty"},
        Refusal{"intake,lift\n1\n", "Line 2, Column 2: the lift is empty"},
        Refusal{"lift,intake\n-1,2\n", "Line 2, Column 1: \"-1\" is a negative lift"},
        Refusal{"100,1,2\n200,x,2\n", "Line 2, Column 2: \"x\" is no number"},
        Refusal{"lift,intake\n100,\"1,5\"\n", "Line 2, Column 2: \"1,5\" is no number"},
        Refusal{"lift;intake\n100;1.234,5\n", "Line 2, Column 2: \"1.234,5\" is no number"},
        Refusal{"lift,intake\n100,12,5\n", "Line 2, Column 3: the first line has no such column"},
        Refusal{"lift,\"in\ntake\"\n100,1\n200,\"1\n",
                "Line 4, Column 2: the closing quote is missing"},
        Refusal{"lift,intake\n\"1\"00,1\n",
                "Line 2, Column 1: something stands behind the closing quote"},
        Refusal{"lift_in,intake\n1e307,1\n", "Line 2, Column 1: \"1e307\" is too large"}));

TEST_F(CSV_Import, A_Sheet_That_Cannot_Be_Calculated_Keeps_The_Rows) {
    Test_Bench bench;
    bench.Set("Form1.Text106(6)", "x");
    EXPECT_EQ(
        Import(bench, "100,5,4\n"),
        (Events{"stop box: Error Number 13 -- Type mismatch\r\n\r\nThe Data from CSV File was "
                "Loaded but Not Calculated",
                "plain box: 1 Records Read"}));
    EXPECT_EQ(bench.Get("Form1.Text106(17)"), "5");
}

TEST_F(CSV_Import, Every_Beginning_Of_A_File_Is_Loaded_Or_Refused) {
    Test_Bench bench;
    for (const char* const name : {"our_export.csv", "metric_semicolons.csv"}) {
        const std::string whole = Csv_Data(name);
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            const Events events = Import(bench, whole.substr(0, length));
            ASSERT_FALSE(events.empty());
            const std::string& last = events.back();
            EXPECT_TRUE((last.starts_with(csv_refused) && events.size() == 1) ||
                        last.find(" Records Read") != std::string::npos)
                << name << length << last;
        }
    }
}

TEST(CSV_Export, Writes_Rows_With_A_Lift_As_The_Fields_Show_Them) {
    Test_Bench bench({.point = ","});
    for (int row = 19; row <= 30; ++row) {
        bench.session.Sheet(1).Text101(row).Set_Text("0");
    }
    bench.Set("Form1.Text106(17)", " 35,80");
    bench.Set("Form1.Text107(18)", "");
    bench.platform.Choose(bench.folder.File("out.csv"));
    EXPECT_EQ(bench.Click("Form1.Export_CSV"),
              (Events{"chooser to save", "plain box: 2 Records Written"}));
    EXPECT_EQ(bench.folder.Read("out.csv"),
              "lift_thou,intake_cfm,exhaust_cfm,swirl,intake_depression,exhaust_depression\r\n"
              "50,35.80,24.6,1250,0,0\r\n100,73,,1600,0,0\r\n");
    bench.Set("Form1.Text107(18)", "52");
    bench.Click("Main.Check2");
    bench.platform.Choose(bench.folder.File("out.csv"));
    bench.Click("Form1.Export_CSV");
    EXPECT_TRUE(bench.folder.Read("out.csv").starts_with(
        "lift_mm,intake_m3min,exhaust_m3min,swirl,intake_depression,exhaust_depression\r\n1.27,"));
}

TEST(CSV_Export, A_Failure_Costs_No_File_That_Is_There) {
    Test_Bench bench;
    const Events failed{"chooser to save", "exclamation box: CSV File was Not Saved"};
    EXPECT_EQ(bench.Click("Form1.Export_CSV"), failed);
    bench.folder.Write("old.csv", "old");
    bench.Set("Form1.Text106(20)", "1,5");
    bench.platform.Choose(bench.folder.File("old.csv"));
    EXPECT_EQ(bench.Click("Form1.Export_CSV"), failed);
    EXPECT_EQ(bench.folder.Read("old.csv"), "old");
}

TEST(CSV_Cells, Stand_Between_Quotes_Where_They_Must) {
    std::string text;
    Append_Csv_Line(text, {"a", "b,c", "say \"x\"", "two\r\nlines", ""});
    EXPECT_EQ(text, "a,\"b,c\",\"say \"\"x\"\"\",\"two\r\nlines\",\r\n");
    Csv_Reader reader(text);
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(reader.Cells(),
              (std::vector<std::string>{"a", "b,c", "say \"x\"", "two\r\nlines", ""}));
    EXPECT_FALSE(reader.Next());
}

} // namespace

} // namespace kestrum
