#include "cli/report_run.h"
#include "cli/usage_error.h"
#include "files/flow_data_file.h"
#include "tests/script_run.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace kestrum::cli {

namespace {

class Report_Verb : public ::testing::Test {
protected:
    Report_Verb() {
        Test_Bench bench;
        stored_ = Flow_File_Text(bench.session, bench.session.Sheet(1));
    }

    int Run(const Report_Options& options) {
        std::ostringstream out;
        std::ostringstream errors;
        const int status = Run_Report(options, folder_.Path(), out, errors);
        out_ = out.str();
        errors_ = errors.str();
        return status;
    }

    std::string Write_Test(std::string_view name, std::string_view part) {
        std::string bytes = stored_;
        const std::size_t at = bytes.find("E7TE");
        bytes.replace(at, 4, part);
        return folder_.Write(name, bytes);
    }

    Temp_Folder folder_;
    std::string stored_;
    std::string out_;
    std::string errors_;
};

TEST_F(Report_Verb, Writes_What_The_Viewer_Saves) {
    const std::string first = Write_Test("first.dat", "AFR 195");
    const std::string second = Write_Test("second.dat", "Dart 215");
    const auto prepared = Run_Script_In(
        folder_, "set Main.Text38 Friday\nclick Main.Check2\nchoose shop.dta\n"
                 "click Main.Save_Data\nclick Form70.Check2(3)\nclick Form70.Option2(2)\n"
                 "choose shop.cfg\nclick Form70.Save\nclose Form1");
    ASSERT_EQ(folder_.Names(), (Events{"first.dat", "second.dat", "shop.cfg", "shop.dta"}));
    ASSERT_EQ(prepared.status, 0) << prepared.fault;
    const auto shown =
        Run_Script_In(folder_, "choose shop.dta\nclick Main.Load_Data\nchoose shop.cfg\n"
                               "click Form70.Load\nchoose first.dat\nclick Form1.Load_Data\n"
                               "choose second.dat\nclick Form2.Load_Data\nclick Form70.Check1(2)\n"
                               "click Form70.Check1(3)\nclick Form70.Check1(4)\n"
                               "click Form70.Command2\nchoose page.prt\nkey Form70.Text38 .");
    ASSERT_EQ(shown.status, 0) << shown.fault;
    const Report_Options options{.main_file = folder_.File("shop.dta"),
                                 .config_file = folder_.File("shop.cfg"),
                                 .files = {first, second}};
    EXPECT_EQ(Run(options), 0);
    EXPECT_EQ(errors_, "");
    EXPECT_EQ(out_, folder_.Read("page.prt"));
    EXPECT_NE(out_.find("\r\n Friday\r\n"), std::string::npos);
    EXPECT_NE(out_.find("Part # Dart 215 "), std::string::npos);
    EXPECT_EQ(out_.find("Flow Test 3 Data"), std::string::npos);
    Report_Options to_file = options;
    to_file.output = folder_.File("second.prt");
    EXPECT_EQ(Run(to_file), 0);
    EXPECT_EQ(out_, "");
    EXPECT_EQ(folder_.Read("second.prt"), folder_.Read("page.prt"));
}

TEST_F(Report_Verb, Writes_Nothing_When_A_File_Cannot_Be_Read_Or_A_Figure_Is_None) {
    const std::string good = Write_Test("good.dat", "AFR 195");
    const std::string none = folder_.File("none.dat");
    EXPECT_EQ(Run({.files = {none, good}}), 1);
    EXPECT_EQ(errors_, none + ": Flow Data File has Not been Loaded -- File not found\n");
    EXPECT_EQ(out_, "");
    const std::string odd = folder_.Write("odd.cfg", "Check1_9 = Yes\r\n");
    EXPECT_EQ(Run({.config_file = odd, .output = folder_.File("page.prt"), .files = {good}}), 1);
    EXPECT_EQ(errors_, odd + ": Invalid Input Record # - 1   Data --> Check1_9 = Yes\n");
    EXPECT_EQ(Run({.main_file = good, .files = {good}}), 1) << "a flow test is no engine";
    std::string bytes = stored_;
    bytes.replace(bytes.find("Text102_8 = 5.37"), 16, "Text102_8 = long");
    EXPECT_EQ(Run({.files = {folder_.Write("long.dat", bytes)}}), 1);
    EXPECT_TRUE(errors_.ends_with("kestrum-cli: The report cannot be made -- Type mismatch\n"))
        << errors_;
    EXPECT_EQ(Run({.output = folder_.File("no/page.prt"), .files = {good}}), 1);
    EXPECT_EQ(folder_.Names(), (Events{"good.dat", "long.dat", "odd.cfg"}));
}

TEST_F(Report_Verb, Takes_Metric_Tests) {
    EXPECT_EQ(Run({.metric = true, .files = {Write_Test("mm.dat", "M52")}}), 0);
    EXPECT_NE(out_.find("Lift mm"), std::string::npos) << out_;
}

/// The lines of the worked example in the document: the call, then what it prints. "..." stands for
/// lines that are left out.
std::vector<std::string> Worked_Example() {
    std::ifstream document(KESTRUM_SOURCE "/docs/automation.md");
    std::vector<std::string> lines;
    bool inside = false;
    for (std::string line; std::getline(document, line);) {
        inside = inside ? line.empty() || line.starts_with("    ")
                        : line.starts_with("    $ kestrum-cli report");
        if (inside) {
            lines.push_back(line.empty() ? line : line.substr(4));
        }
    }
    return lines;
}

std::string Without_Blanks_Behind(std::string line) {
    line.erase(line.find_last_not_of(" \r") + 1);
    return line;
}

TEST_F(Report_Verb, Prints_The_Worked_Example_Of_The_Document) {
    std::filesystem::current_path(KESTRUM_SOURCE);
    const std::vector<std::string> example = Worked_Example();
    ASSERT_GT(example.size(), 20U);
    EXPECT_EQ(example[0] + example[1],
              "$ kestrum-cli report --config examples/short_report.cfg "
              "examples/jeep_4l_stock_table_1.dat \\    examples/jeep_4l_stock_table_2.dat");
    ASSERT_EQ(Run({.config_file = "examples/short_report.cfg",
                   .files = {"examples/jeep_4l_stock_table_1.dat",
                             "examples/jeep_4l_stock_table_2.dat"}}),
              0)
        << errors_;
    std::istringstream printed(out_);
    std::string line;
    bool skips = false;
    for (std::size_t at = 2; at < example.size(); ++at) {
        if (example[at] == "...") {
            skips = true;
            continue;
        }
        do {
            ASSERT_TRUE(std::getline(printed, line)) << "not printed: " << example[at];
            line = Without_Blanks_Behind(line);
        } while (skips && line != example[at]);
        skips = false;
        EXPECT_EQ(line, example[at]);
    }
}

TEST(Report_Call, Wants_One_To_Five_Tests_And_Known_Options) {
    const std::array good{"--main", "m.dta", "a.dat", "--", "-b.dat", "c", "d", "e"};
    const Report_Options options = Report_Options_From(good);
    EXPECT_EQ(options.main_file, "m.dta");
    EXPECT_EQ(options.files, (std::vector<std::string>{"a.dat", "-b.dat", "c", "d", "e"}));
    EXPECT_EQ(Report_Options_From(std::array{"-o", "x.prt", "a.dat"}).output, "x.prt");
    for (const std::vector<const char*>& bad :
         std::initializer_list<std::vector<const char*>>{{},
                                                         {"-o", "x.prt"},
                                                         {"a", "b", "c", "d", "e", "f"},
                                                         {"a", "-o"},
                                                         {"a", "--main", ""},
                                                         {"a", "--pdf"},
                                                         {"a", ""}}) {
        EXPECT_THROW(static_cast<void>(Report_Options_From(bad)), Usage_Error);
    }
}

} // namespace

} // namespace kestrum::cli
