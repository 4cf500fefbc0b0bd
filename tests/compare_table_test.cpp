#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

using Texts = std::initializer_list<Expected_Text>;

TEST(Compare_Table, Heads_Its_Columns_By_Type) {
    Graph_Bench bench;
    bench.Set("Form1.Text102(9)", "505.0");
    bench.Set("Form2.Text103(9)", "425.0");
    bench.Pick(0);
    EXPECT_EQ(bench.Click("Form50.Command1"), Events{});
    Expect_Texts(bench, {{"Form50.Text102(10)", "Test 1 - Stock"},
                         {"Form50.Text104(10)", "Test 2 - Ported"},
                         {"Form50.Text103(10)", ""},
                         {"Form50.Text105(10)", ""},
                         {"Form50.Text101(11)", ".25D In/Ex"},
                         {"Form50.Text102(11)", "505.0"},
                         {"Form50.Text105(11)", "425.0"},
                         {"Form50.Text102(12)", ""},
                         {"Form50.Text107(11)", "Intake"},
                         {"Form50.Text108(11)", ""},
                         {"Form50.Text109(11)", "Exhaust"},
                         {"Form50.Text109(12)", "Diff."}});
    bench.Pick(3);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text107(10)", "Test 1 - Stock"},
                         {"Form50.Text109(10)", "Test 2 - Ported"},
                         {"Form50.Text107(12)", ""},
                         {"Form50.Text108(12)", "Port"},
                         {"Form50.Text109(12)", "Energy"},
                         {"Form50.Text110(12)", "Ft-lbs"}});
    bench.Click("Main.Check2");
    bench.Pick(4);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text107(12)", "Port"},
                         {"Form50.Text108(12)", "Energy"},
                         {"Form50.Text109(12)", "Density"},
                         {"Form50.Text110(12)", "Joules"}});
    bench.Pick(12);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text107(10)", ""},
                         {"Form50.Text108(11)", "Exhaust"},
                         {"Form50.Text109(11)", "Intake"},
                         {"Form50.Text110(12)", "% Change"},
                         {"Form50.Text107(16)", "0"},
                         {"Form50.Text110(16)", "0"}});
}

TEST(Compare_Table, Takes_The_Chosen_Sheets_And_X_Column) {
    Graph_Bench bench;
    bench.Set("Form4.Text102(0)", "Welded");
    bench.Fill("Form4.Text209", {"0", ".111"});
    bench.Fill("Form1.Text209", {"0", ".222"});
    bench.Fill("Form1.Text208", {"0", ".333"});
    bench.Click("Form50.Option1(3)");
    bench.Click("Form50.Option2(0)");
    bench.Pick(0, 2);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text102(10)", "Test 4 - Welded"},
                         {"Form50.Text104(10)", "Test 1 - Stock"},
                         {"Form50.Text101(17)", ".111"},
                         {"Form50.Text106(17)", ".222"}});
    bench.Pick(0, 1);
    bench.Click("Form50.Command1");
    EXPECT_EQ(bench.Get("Form50.Text106(17)"), ".333");
}

/// Values of one row of both tests, and what the row derives from them.
struct Row_Case {
    const char* name;
    int type;
    const char* intake; // columns of the sheets
    const char* exhaust;
    std::array<const char*, 4> values; // From intake, From exhaust, To intake, To exhaust
    std::array<const char*, 4> derived;
};

TEST(Compare_Table, Derives_A_Row) {
    // Differences are To less From; a % is From over To, less 100. By hand.
    const Row_Case cases[] = {
        {"flow",
         0,
         "Text102",
         "Text103",
         {"150", "90", "165.25", "80"},
         {"15.25", "", "-10.0", ""}},
        {"no change", 1, "Text109", "Text110", {"75", "8", "75", "8"}, {"0.0", "", "0.0", ""}},
        {"swirl", 6, "Text207", "Text207", {"-50", "-50", "70", "70"}, {"120.0", "", "", ""}},
        {"a coefficient",
         7,
         "Text111",
         "Text112",
         {".61", ".5", ".6235", ".42"},
         {"0.014", "", "-0.08", ""}},
        {"the lower-case column",
         8,
         "text205",
         "Text206",
         {".6", ".5", ".7", ".4"},
         {"0.1", "", "-0.1", ""}},
        {"a % the other way",
         9,
         "Text102",
         "Text103",
         {"200", "90", "100", "120"},
         {"100.0", "-25.0", "100.0", "-25.0"}},
        {"a % cut to two places",
         14,
         "Text203",
         "Text204",
         {"100", "100", "300", "150"},
         {"-66.67", "-33.33", "-66.67", "-33.33"}},
        {"swirl of one sign",
         15,
         "Text207",
         "Text207",
         {"50", "50", "100", "100"},
         {"-50.0", "-50.0", "-50.0", "-50.0"}},
        {"swirl below zero",
         15,
         "Text207",
         "Text207",
         {"-150", "-150", "-100", "-100"},
         {"50.0", "50.0", "50.0", "50.0"}},
        {"swirl that turns",
         15,
         "Text207",
         "Text207",
         {"100", "100", "-50", "-50"},
         {"300.0", "300.0", "300.0", "300.0"}}, // (100 + 100) / 50
        {"swirl that turns back",
         15,
         "Text207",
         "Text207",
         {"-50", "-50", "100", "100"},
         {"-75.0", "-75.0", "-75.0", "-75.0"}}, // 50 / (100 + 100)
    };
    for (const Row_Case& one : cases) {
        SCOPED_TRACE(one.name);
        Graph_Bench bench;
        const std::string in = std::string(".") + one.intake + "(20)";
        const std::string ex = std::string(".") + one.exhaust + "(20)";
        bench.Set("Form1" + in, one.values[0]);
        bench.Set("Form1" + ex, one.values[1]);
        bench.Set("Form2" + in, one.values[2]);
        bench.Set("Form2" + ex, one.values[3]);
        bench.Pick(one.type);
        bench.Click("Form50.Command1");
        Expect_Texts(bench, {{"Form50.Text102(20)", one.values[0]},
                             {"Form50.Text103(20)", one.values[1]},
                             {"Form50.Text104(20)", one.values[2]},
                             {"Form50.Text105(20)", one.values[3]},
                             {"Form50.Text107(20)", one.derived[0]},
                             {"Form50.Text108(20)", one.derived[1]},
                             {"Form50.Text109(20)", one.derived[2]},
                             {"Form50.Text110(20)", one.derived[3]}});
    }
}

TEST(Compare_Table, The_Zero_Lift_Has_Differences_But_No_Change) {
    Graph_Bench bench;
    bench.Set("Form1.Text102(16)", "3");
    bench.Set("Form2.Text102(16)", "4");
    bench.Pick(0);
    bench.Click("Form50.Command1");
    EXPECT_EQ(bench.Get("Form50.Text107(16)"), "1.0");
    bench.Pick(9);
    bench.Click("Form50.Command1");
    EXPECT_EQ(bench.Get("Form50.Text107(16)"), "0");
    EXPECT_EQ(bench.Get("Form50.Text107(17)"), "-50.0") << "10 over 20";
}

TEST(Compare_Table, Cells_That_A_Type_Leaves_Alone_Stay_Stale) {
    Graph_Bench bench;
    bench.Set("Form1.Text114(20)", "100");
    bench.Set("Form2.Text115(20)", "100");
    bench.Pick(3);
    bench.Click("Form50.Command1"); // leaves an energy in Text110(20)
    const std::string energy = bench.Get("Form50.Text110(20)");
    ASSERT_NE(energy, "");
    bench.Set("Form1.Text102(20)", "0");
    bench.Set("Form1.Text103(20)", "0");
    bench.Pick(9);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text107(20)", ""}, // by the From half
                         {"Form50.Text109(20)", ""},
                         {"Form50.Text110(20)", energy}});
    bench.Set("Form50.Text109(20)", "left over");
    bench.Fill("Form1.Text207", {});
    bench.Pick(15);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text109(20)", "left over"}, {"Form50.Text110(20)", energy}});
}

/// Ports of 203 and 75 cc. Half the mass of the air in 203 cc is 0.000272368... slugs.
void Fill_Ports(Test_Bench& bench, std::string_view sheet) {
    const std::string form(sheet);
    bench.Set(form + ".Text102(1)", "203");
    bench.Set(form + ".Text104(1)", "75");
    bench.Set(form + ".Text102(2)", "2");
    bench.Set(form + ".Text102(8)", "5");
    bench.Set(form + ".Text104(2)", "1.5");
    bench.Set(form + ".Text104(8)", "3");
    bench.Set(form + ".Text114(20)", "150");
    bench.Set(form + ".Text115(20)", "120");
}

TEST(Compare_Table, Port_Energies_Come_From_Volume_And_Velocity) {
    Graph_Bench bench;
    Fill_Ports(bench, "Form1");
    Fill_Ports(bench, "Form2");
    bench.Set("Form2.Text114(20)", "200");
    bench.Pick(2);
    bench.Click("Form50.Command1");
    // 203 / 16.39 / 1728 / 2 * 0.076 = 0.000272368540; times 150^2 and 200^2; 75 cc times 120^2.
    Expect_Texts(bench, {{"Form50.Text107(20)", "6.1283"},
                         {"Form50.Text108(20)", "1.4491"},
                         {"Form50.Text109(20)", "10.8947"},
                         {"Form50.Text110(20)", "1.4491"},
                         {"Form50.Text107(15)", ""}});
    bench.Pick(4);
    bench.Click("Form50.Command1");
    EXPECT_EQ(bench.Get("Form50.Text107(20)"), "7.354") << "6.12829 / 2 * 12 / 5 = 7.35395";
}

TEST(Compare_Table, Metric_Port_Energies_Are_In_Joules) {
    Graph_Bench bench;
    bench.Click("Main.Check2");
    Fill_Ports(bench, "Form1");
    bench.Set("Form1.Text114(20)", "50");
    bench.Set("Form1.Text102(2)", "1290.32"); // 2 square inches
    bench.Set("Form1.Text102(8)", "127");     // 5 inches
    bench.Pick(3);
    bench.Click("Form50.Command1");
    // 0.000272368540 * (50 / 0.3048)^2 * 1.35581795
    EXPECT_EQ(bench.Get("Form50.Text107(20)"), "9.9373");
    bench.Pick(4);
    bench.Click("Form50.Command1");
    EXPECT_EQ(bench.Get("Form50.Text107(20)"), "11.9248");
}

TEST(Compare_Table, The_Gates_Of_Port_Energy_Are_Crossed_On_The_To_Side) {
    Graph_Bench bench;
    Fill_Ports(bench, "Form1");
    Fill_Ports(bench, "Form2");
    bench.Set("Form2.Text115(20)", "0"); // the To exhaust shuts the To intake
    bench.Pick(3);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text109(20)", ""}, {"Form50.Text110(20)", "0.0"}});
    bench.Pick(4); // the density looks at its own columns
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text109(20)", "7.354"}, {"Form50.Text110(20)", ""}});
    bench.Set("Form2.Text115(20)", "120");
    bench.Set("Form1.Text115(20)", "0"); // the From exhaust shuts the To exhaust
    bench.Pick(3);
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text107(20)", "6.1283"}, // straight on the From side
                         {"Form50.Text108(20)", ""},
                         {"Form50.Text109(20)", "6.1283"},
                         {"Form50.Text110(20)", ""}});
    bench.Set("Form1.Text115(20)", "0.0"); // the text "0" alone does
    bench.Click("Form50.Command1");
    Expect_Texts(bench, {{"Form50.Text108(20)", "0.0"}, {"Form50.Text110(20)", "1.4491"}});
}

TEST(Compare_Table, A_Change_Of_Energies_Moves_Them_To_The_Value_Columns) {
    Graph_Bench bench;
    for (const char* const sheet : {"Form1", "Form2"}) {
        for (const char* const column : {"Text114", "Text115"}) {
            for (int row = zero_lift_row; row <= last_lift_row; ++row) {
                bench.session.Screen_Named(sheet)->Array(column)(row).Set_Text("0.0");
            }
        }
        Fill_Ports(bench, sheet);
    }
    bench.Set("Form2.Text114(20)", "200");
    bench.Set("Form1.Text114(13)", "Port");
    bench.Pick(16);
    EXPECT_EQ(bench.Click("Form50.Command1"), Events{});
    Expect_Texts(bench, {{"Form50.Text102(20)", "6.1283"},
                         {"Form50.Text104(20)", "10.8947"},
                         {"Form50.Text107(20)", "-43.75"}, // 6.1283 / 10.8947 = 0.56250
                         {"Form50.Text109(20)", "-43.75"},
                         {"Form50.Text108(20)", "0.0"},
                         {"Form50.Text102(13)", ""}});
    // A row without a change keeps its energies but for one.
    Expect_Texts(bench, {{"Form50.Text107(25)", "0.0"},
                         {"Form50.Text108(25)", "0.0"},
                         {"Form50.Text109(25)", ""},
                         {"Form50.Text110(25)", "0.0"}});
}

const std::string last_words =
    "\r\n\r\nPlease Save your Data for Flow Test 1 - Stock\r\n\r\nIf you can NOT Find the Reason "
    "for "
    "this Error. Please the Sent the Saved Data file and a Print Screen of this Error to Software "
    "Support.";

TEST(Compare_Table, A_Cell_That_Is_No_Number_Ends_The_Half) {
    Graph_Bench bench;
    bench.Set("Form2.Text102(20)", "abc");
    bench.Pick(0);
    EXPECT_EQ(bench.Click("Form50.Command1"),
              Events{"stop box: Error Number 13 -- Type mismatch" + last_words});
    Expect_Texts(bench, {{"Form50.Text107(19)", "30.0"},
                         {"Form50.Text104(20)", "abc"},
                         {"Form50.Text104(21)", ""}});
}

TEST(Compare_Table, Both_Halves_Name_The_From_Test) {
    Graph_Bench bench;
    for (const std::string sheet : {"Form1", "Form2"}) {
        bench.Fill(sheet + ".Text114", {});
        Fill_Ports(bench, sheet);
        bench.Set(sheet + ".Text102(2)", "0");
    }
    bench.Pick(4);
    const std::string box =
        "stop box: Error Number 11 -- Division by zero" + last_words +
        "\r\n\r\nCheck for a Field that has a Value of Zero that should not be Zero";
    EXPECT_EQ(bench.Click("Form50.Command1"), (Events{box, box}));
    bench.Set("Form1.Text102(2)", "x"); // of two faults the one that is read first counts
    bench.Set("Form1.Text102(8)", "0");
    EXPECT_EQ(bench.Click("Form50.Command1"),
              (Events{"stop box: Error Number 13 -- Type mismatch" + last_words, box}));
}

} // namespace

} // namespace kestrum
