#include "cli/calc_run.h"
#include "cli/calc_sheet.h"
#include "cli/standard_streams.h"
#include "cli/usage_error.h"
#include "files/flow_data_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <sstream>

namespace kestrum::cli {

namespace {

/// A folder of flow tests and what the verb says of them.
class Calc_Verb : public ::testing::Test {
protected:
    /// The stored test of the program: part E7TE, calculated by hand in the notes of the trade.
    std::string Stored_Test() { return Flow_File_Text(bench_.session, bench_.session.Sheet(1)); }

    /// The stored test with some lines changed: "Text108_7 = 0".
    std::string With(std::initializer_list<std::string_view> lines) {
        std::string bytes = Stored_Test();
        for (const std::string_view line : lines) {
            const std::size_t at = bytes.find(line.substr(0, line.find('=')));
            bytes.replace(at, bytes.find("\r\n", at) - at, line);
        }
        return bytes;
    }

    std::string Write(std::string_view name, std::string_view bytes) {
        return bench_.folder.Write(name, bytes);
    }

    int Run(const Calc_Options& options, const std::string& names = {}) {
        std::istringstream in(names);
        std::ostringstream out;
        std::ostringstream errors;
        const int status = Run_Calc(options, in, out, errors);
        out_ = out.str();
        errors_ = errors.str();
        return status;
    }

    int Run_Csv(std::vector<std::string> files) {
        return Run({.format = Calc_Format::Csv, .files = std::move(files)});
    }

    [[nodiscard]] bool Printed(const std::string& line) const {
        return ("\n" + out_).find("\n" + line + "\n") != std::string::npos;
    }

    [[nodiscard]] std::ptrdiff_t Lines() const { return std::ranges::count(out_, '\n'); }

    Test_Bench bench_;
    std::string out_;
    std::string errors_;
};

constexpr int figure_count = 328; // 28 of the header block, 20 columns of 15 rows

TEST_F(Calc_Verb, Prints_The_Worked_Figures_Of_The_Stored_Test) {
    const std::string file = Write("stored.dat", Stored_Test());
    EXPECT_EQ(Run_Csv({file}), 0);
    EXPECT_EQ(errors_, "");
    EXPECT_EQ(Lines(), 1 + figure_count);
    EXPECT_TRUE(out_.starts_with("file,field,caption,unit,value\n"));
    for (const char* const figure : {
             R"(Text102(2),"Mean area, intake",sq in,2.306)",
             R"(Text104(2),"Mean area, exhaust",sq in,1.589)",
             R"(Text102(7),Throat area In.,sq in,1.89)",
             R"(Text102(9),"0.25D In./Ex, intake",1/1000 in,505.0)",
             R"(Text110(2),"Port Area, intake",sq in,2.499)",
             R"(Text107(4),Area Ratio Intake,,0.78)",
             R"(Text107(5),Area Ratio Exhaust,,0.844)",
             R"(Text111(3),"Ex corner bot, area lost",sq in,0.034336)",
             R"(Text106(11),"Total CFM, intake",cfm,2821.2)",
             R"(Text102(11),"Avg CFM, intake",cfm,201.5)",
             R"(Text107(11),"Total CFM, exhaust",cfm,2106.0)",
             R"(Text103(11),"Avg CFM, exhaust",cfm,150.4)",
             R"(Text113(10),Required In/Ex Rat,,0.755)",
             R"(Text113(11),Existing In/Ex Rat,,0.738)",
             R"(Text113(12),"Existing In/Ex Rat, all lifts",,0.742)",
             R"(Text109(17),"CFM Sq In In., lift 50",cfm/sq in,112.83)",
             R"(Text104(26),"Effective Lift Inch In., lift 600",1/1000 in,505.0)",
             R"(Text109(26),"CFM Sq In In., lift 600",cfm/sq in,83.63)",
             R"(Text111(26),"SAE CD In, lift 600",,0.573)",
             R"(Text114(26),"Mean Port Vel In., lift 600",ft/s,278.9)",
             R"(Text115(26),"Mean Port Vel Ex., lift 600",ft/s,284.9)",
             R"(Text201(26),"Effective Valve Area In., lift 600",sq in,1.795)",
             R"(Text204(26),"Effective Valve Vel Ex., lift 600",ft/s,378.8)",
         }) {
        EXPECT_TRUE(Printed(file + "," + figure)) << figure;
    }
}

TEST_F(Calc_Verb, Prints_What_The_Program_Shows_Under_Its_Metric_Box) {
    // Valve 51.308 mm: a quarter is 12.827; 1 mm at 1 cubic metre a minute.
    const std::string file =
        Write("metric.dat", With({"Text102_3 = 51.308", "Text104_3 = 40", "Text101_17 = 1",
                                  "Text106_17 = 1", "Text110_6 = 20"}));
    EXPECT_EQ(Run({.format = Calc_Format::Csv, .metric = true, .files = {file}}), 0);
    EXPECT_TRUE(Printed(file + R"(,Text102(9),"0.25D In./Ex, intake",mm,12.827)"));
    EXPECT_TRUE(Printed(file + R"(,Text102(17),"M^3 Min Corrected Intake, lift 1",m3/min,1.0)"));
    EXPECT_TRUE(Printed(file + R"(,Text208(17),"L / D Ratio Intake, lift 1",,0.019)"));
    EXPECT_NE(out_.find("Text109(17),\"M^3 Min Sq mm In., lift 1\",m3/min sq mm,"),
              std::string::npos);
    bench_.Click("Main.Check2");
    bench_.platform.Choose(file);
    bench_.Click("Form1.Load_Data");
    std::istringstream lines(out_);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        const std::string_view rest = std::string_view(line).substr(file.size() + 1);
        const std::string address = "Form1." + std::string(rest.substr(0, rest.find(',')));
        EXPECT_EQ(line.substr(line.rfind(',') + 1), bench_.Get(address)) << line;
    }
}

TEST_F(Calc_Verb, No_File_Depends_On_Those_Before_It) {
    const std::string gap = Write("gap.dat", "Text101_17 = 60\r\n");
    EXPECT_EQ(Run_Csv({gap}), 0);
    const std::string alone = out_;
    const std::string other =
        Write("other.dat", With({"Text102_3 = 1.9", "Text202_4 = 45", "Text106_6 = 2",
                                 "Text112_6 = 4.5", "Text207_20 = 7", "Comments = x"}));
    const std::string broken = Write("broken.dat", "Text101_17 = 70\r\nText101_99 = 1\r\n");
    const std::string zero = Write("zero.dat", With({"Text108_7 = 0"}));
    EXPECT_EQ(Run_Csv({other, broken, zero, gap}), 1);
    EXPECT_TRUE(out_.ends_with(alone.substr(alone.find('\n') + 1)));
}

TEST_F(Calc_Verb, A_File_That_Does_Not_Load_Is_Told_And_The_Next_One_Follows) {
    const std::string missing = bench_.folder.File("missing.dat");
    const std::string bad_row = Write("row.dat", "Text101_31 = 5\r\n");
    const std::string unknown = Write("unknown.dat", "Text102_2 = 5\r\nText101_17 = 60\r\n");
    const std::string count = Write("count.dat", "Text106_6 = two\r\n");
    const std::string good = Write("good.dat", Stored_Test());
    EXPECT_EQ(Run_Csv({missing, bad_row, unknown, count, good}), 1);
    const std::string closing = ": Error Loading Flow Data File --- If you have Not edited the "
                                "file Please Contact us!\n";
    EXPECT_EQ(errors_,
              missing + ": Flow Data File has Not been Loaded -- File not found\n" + bad_row +
                  ": Invalid Input Record # - 1   Data --> Text101_31 = 5\n" + bad_row + closing +
                  unknown + ": Record not Handled -->Text102_2 = 5\n" + unknown + closing + count +
                  ": Invalid Input Record # - 1   Data --> Text106_6 = two\n" + count + closing);
    EXPECT_EQ(Lines(), 1 + figure_count); // of the good one alone
    EXPECT_EQ(out_.find(unknown), std::string::npos);
}

TEST_F(Calc_Verb, A_Warning_Is_Told_And_Hinders_Nothing) {
    const std::string file = Write("tight.dat", With({"Text102_6 = 1.9"})); // 1.9 / 2.02 = 0.9406
    EXPECT_EQ(Run_Csv({file}), 0);
    EXPECT_EQ(errors_, file + ": Caution - The Intake Throat Valve Ratio maybe a little high\n");
    EXPECT_TRUE(Printed(file + ",Text113(7),Ratio Throat Valve Int,,0.9406"));
}

TEST_F(Calc_Verb, A_Calculation_That_Stops_Leaves_A_Loaded_File) {
    const std::string file = Write("zero.dat", With({"Text102_8 = 0"}));
    EXPECT_EQ(Run_Csv({file}), 0);
    EXPECT_EQ(errors_,
              file + ": Error Number 11 -- Division by zero Please Save your Data. If you can NOT "
                     "Find the Reason for this Error. Please the Sent the Saved Data file and a "
                     "Print Screen of this Error to Software Support. Check for a Field that has "
                     "a Value of Zero that should not be Zero\n");
    EXPECT_EQ(Lines(), 1 + figure_count);
}

TEST_F(Calc_Verb, Json_Has_One_Object_For_Each_File) {
    const std::string file = Write("a b.dat", With({"Text102_6 = 1.9", "Text101_30 = \t"}));
    EXPECT_EQ(Run({.format = Calc_Format::Json, .files = {file, bench_.folder.File("c.dat")}}), 1);
    std::istringstream lines(out_);
    std::string line;
    std::getline(lines, line);
    const auto first = nlohmann::json::parse(line);
    EXPECT_EQ(first["file"], file);
    EXPECT_EQ(first["loaded"], true);
    EXPECT_EQ(first["metric"], false);
    EXPECT_EQ(first["figures"].size(), figure_count);
    EXPECT_EQ(first["figures"][0], (nlohmann::json{{"field", "Text102(2)"},
                                                   {"caption", "Mean area, intake"},
                                                   {"unit", "sq in"},
                                                   {"value", "2.306"}}));
    EXPECT_EQ(first["boxes"][0], "Caution - The Intake Throat Valve Ratio maybe a little high");
    std::getline(lines, line);
    EXPECT_EQ(
        nlohmann::json::parse(line),
        (nlohmann::json{{"file", bench_.folder.File("c.dat")},
                        {"loaded", false},
                        {"metric", false},
                        {"figures", nlohmann::json::array()},
                        {"boxes", {"Flow Data File has Not been Loaded -- File not found"}}}));
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(Calc_Verb, Csv_Quotes_What_Holds_A_Mark_Of_The_Format) {
    const std::string file =
        Write("a, b.dat", With({"Text101_17 = 50 \"soft\""})); // no number: stops in row 17
    EXPECT_EQ(Run_Csv({file}), 0);
    EXPECT_TRUE(Printed("\"" + file +
                        R"(",Text108(17),"Actual Valve Lift Inch, lift 50 ""soft""",)"
                        R"(1/1000 in,"50 ""soft""")"));
}

TEST_F(Calc_Verb, Names_Of_Any_Bytes_Are_Quoted) {
    const std::string file = Write("a \"b\"\xff.dat", Stored_Test());
    EXPECT_EQ(Run({.format = Calc_Format::Json, .files = {file}}), 0);
    EXPECT_EQ(nlohmann::json::parse(out_)["file"], bench_.folder.File("a \"b\"\xEF\xBF\xBD.dat"));
    EXPECT_EQ(Run_Csv({file}), 0);
    EXPECT_NE(out_.find("a \"\"b\"\"\xff.dat\","), std::string::npos);
}

TEST_F(Calc_Verb, Control_Characters_Of_Names_Reach_No_Terminal) {
    const std::string file = Write("a\n\x1b[2J.dat", Stored_Test());
    const std::string shown = bench_.folder.File("a\\n\\u001b[2J.dat");
    for (const Calc_Format format : {Calc_Format::Text, Calc_Format::Csv}) {
        EXPECT_EQ(Run({.format = format, .files = {file}, .to_terminal = true}), 0);
        EXPECT_NE(out_.find(shown), std::string::npos);
        EXPECT_EQ(out_.find('\x1b'), std::string::npos);
        EXPECT_EQ(Run({.format = format, .files = {file}}), 0);
        EXPECT_NE(out_.find(file), std::string::npos) << "a file gets the name as it is";
    }
    EXPECT_EQ(Run_Csv({bench_.folder.File("b\x7f\xc2\x85\t")}), 1);
    EXPECT_EQ(errors_, bench_.folder.File("b\\u007f\\u0085\\t") +
                           ": Flow Data File has Not been Loaded -- File not found\n");
}

TEST_F(Calc_Verb, The_Text_Shows_List_And_Tables) {
    const std::string file = Write("stored.dat", Stored_Test());
    const std::string missing = bench_.folder.File("missing.dat");
    EXPECT_EQ(Run({.files = {missing, file}}), 1);
    EXPECT_TRUE(out_.starts_with(missing + ": not loaded\n\n" + file + "\n\n"));
    EXPECT_TRUE(Printed("  Mean area, intake                 2.306  sq in"));
    EXPECT_TRUE(Printed("  Area Ratio Intake                  0.78"));
    EXPECT_TRUE(Printed("        600      268.0      188.6      505.0      400.0      83.63"
                        "       93.8  0.573  0.642  0.704    278.9    284.9"));
    EXPECT_TRUE(Printed("        600      1.795      1.195      358.3      378.8      1.023"
                        "      1.081   0.297    0.375"));
}

TEST_F(Calc_Verb, Names_Come_From_Standard_Input_Behind_The_Named_Files) {
    const std::string a = Write("a.dat", "Text101_17 = 60\r\n");
    const std::string b = Write("b.dat", "Text101_17 = 60\r\n");
    EXPECT_EQ(
        Run({.format = Calc_Format::Csv, .names_from_input = true, .files = {b}}, a + "\r\n\n" + b),
        0);
    EXPECT_EQ(Lines(), 1 + 3 * figure_count);
    EXPECT_TRUE(out_.substr(out_.find('\n') + 1).starts_with(b + ","));
}

TEST_F(Calc_Verb, Figures_That_Cannot_Be_Written_Are_A_Failure) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream errors;
    out.setstate(std::ios::badbit);
    const Calc_Options options{.files = {Write("stored.dat", Stored_Test())}};
    EXPECT_THROW(static_cast<void>(Run_Calc(options, in, out, errors)), Stream_Error);
}

TEST(Calc_Figures, Every_Figure_Has_A_Name_Of_Its_Own) {
    for (const bool metric : {false, true}) {
        const Calc_Sheet sheet(metric);
        std::set<std::string> names;
        for (const Flow_Figure& figure : sheet.Figures()) {
            if (figure.lift == nullptr || figure.cell->Index() == zero_lift_row) {
                EXPECT_FALSE(figure.name.empty()) << figure.field;
                EXPECT_TRUE(names.insert(figure.name).second) << figure.name;
            }
        }
        EXPECT_EQ(sheet.Figures().size(), figure_count);
    }
}

TEST(Calc_Examples, Every_Example_Loads_Without_A_Box) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(KESTRUM_EXAMPLES)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(".dat")) {
            Calc_Sheet sheet(name.ends_with("_metric.dat"));
            EXPECT_TRUE(sheet.Load(entry.path().string())) << name;
            EXPECT_EQ(sheet.Boxes(), std::vector<std::string>()) << name;
            ++count;
        }
    }
    EXPECT_GE(count, 5);
}

struct Wrong_Call {
    const char* name;
    std::vector<const char*> arguments;
    std::string_view message;
};

TEST(Calc_Options, Wrong_Calls_Are_Told_With_The_Usage) {
    const std::array calls{
        Wrong_Call{"no file", {"--csv"}, "calc: no file is named"},
        Wrong_Call{"nothing", {}, "calc: no file is named"},
        Wrong_Call{"two formats", {"--csv", "--json", "a.dat"}, "calc: --csv and --json exclude"},
        Wrong_Call{"an option", {"--xml", "a.dat"}, "calc: unknown option '--xml'"},
        Wrong_Call{"a dash", {"-"}, "calc: unknown option '-'"},
        Wrong_Call{"an empty name", {"a.dat", ""}, "calc: a file name is empty"},
        Wrong_Call{"a list", {"--files-from", "list"}, "calc: --files-from reads standard input"},
        Wrong_Call{"no list", {"a.dat", "--files-from"}, "calc: '--files-from' wants a value"},
    };
    for (const Wrong_Call& call : calls) {
        try {
            static_cast<void>(Calc_Options_From(call.arguments));
            ADD_FAILURE() << call.name;
        } catch (const Usage_Error& fault) {
            const std::string_view told = fault.what();
            EXPECT_TRUE(told.starts_with(call.message)) << told;
            EXPECT_NE(told.find("usage: kestrum-cli calc [--metric]"), std::string_view::npos);
        }
    }
}

TEST(Calc_Options, Options_And_Files_Mix) {
    const std::array arguments{"a.dat", "--metric", "--json", "--files-from", "-", "--", "--b.dat"};
    const Calc_Options options = Calc_Options_From(arguments);
    EXPECT_TRUE(options.metric);
    EXPECT_TRUE(options.names_from_input);
    EXPECT_EQ(options.format, Calc_Format::Json);
    EXPECT_EQ(options.files, (std::vector<std::string>{"a.dat", "--b.dat"}));
}

} // namespace

} // namespace kestrum::cli
