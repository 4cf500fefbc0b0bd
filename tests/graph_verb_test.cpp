#include "cli/graph_options.h"
#include "cli/graph_run.h"
#include "cli/usage_error.h"
#include "files/flow_data_file.h"
#include "tests/script_run.h"
#include "tests/shell.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>

namespace kestrum::cli {

namespace {

/// Notes the texts of the graph that it is to paint.
struct Noting_Painter : Painter {
    using Painter::Picture_Of; // of several pages

    std::string Picture_Of(const Drawing& drawing, Picture_Format /*format*/,
                           const std::optional<Placed_Logo>& logo) override {
        EXPECT_FALSE(logo);
        for (const Draw_Operation& step : drawing.Operations()) {
            if (step.kind == Draw_Kind::Text) {
                texts.push_back(step.text);
            }
        }
        return "a picture";
    }

    [[nodiscard]] bool Wrote(std::string_view text) const {
        return std::ranges::find(texts, text) != texts.end();
    }

    std::vector<std::string> texts;
};

class Graph_Verbs : public ::testing::Test {
protected:
    /// The stored test of the program with another part number and intake flow at lift 600.
    std::string Write_Test(std::string_view name, std::string_view part, std::string_view flow) {
        bench_.Set("Form1.Text102(0)", part);
        bench_.Set("Form1.Text106(26)", flow);
        return bench_.folder.Write(name, Flow_File_Text(bench_.session, bench_.session.Sheet(1)));
    }

    int Graph(const Graph_Options& options) {
        std::ostringstream errors;
        const int status = Run_Graph(options, painter_, errors);
        errors_ = errors.str();
        return status;
    }

    int Compare(const Graph_Options& options) {
        std::ostringstream out;
        std::ostringstream errors;
        const int status = Run_Compare(options, out, errors);
        out_ = out.str();
        errors_ = errors.str();
        return status;
    }

    Test_Bench bench_;
    Noting_Painter painter_;
    std::string stock_ = Write_Test("stock.dat", "Stock", "209");
    std::string ported_ = Write_Test("ported.dat", "Ported", "240");
    std::string output_ = bench_.folder.File("out.png");
    std::string out_;
    std::string errors_;
};

TEST_F(Graph_Verbs, Draw_What_The_Program_Draws) {
    EXPECT_EQ(Graph({.pairs = {{stock_, ported_}}, .output = output_}), 0);
    EXPECT_EQ(errors_, "");
    EXPECT_EQ(bench_.folder.Read("out.png"), "a picture");
    EXPECT_TRUE(painter_.Wrote("Thin Graph Lines Test 1 - Stock"));
    EXPECT_TRUE(painter_.Wrote("Thick Graph Lines Test 2 - Ported"));
    EXPECT_TRUE(painter_.Wrote("CFM @ 28\""));
}

TEST_F(Graph_Verbs, Lay_Further_Pairs_Over_The_First) {
    const std::string welded = Write_Test("welded.dat", "Welded", "250");
    EXPECT_EQ(Graph({.pairs = {{stock_, ported_}, {welded, stock_}, {ported_, welded}},
                     .type = 7,
                     .x_column = 1,
                     .metric = true,
                     .output = output_}),
              0);
    EXPECT_TRUE(painter_.Wrote("Thin Graph Lines Test 1 - Welded"));
    EXPECT_TRUE(painter_.Wrote("Thick Graph Lines Test 2 - Stock"));
    EXPECT_TRUE(painter_.Wrote("Intake = Cyan / Exhaust = Magenta"));
    EXPECT_TRUE(painter_.Wrote("Intake Valve Lift as L/D"));
}

TEST_F(Graph_Verbs, No_Test_Depends_On_The_One_Before_It) {
    const std::string few = bench_.folder.Write("few.dat", "Text106_26 = 230\r\n");
    EXPECT_EQ(Graph({.pairs = {{stock_, ported_}, {few, ported_}}, .output = output_}), 0);
    EXPECT_TRUE(painter_.Wrote("Thin Graph Lines Test 1 - E7TE")) << "the stored part number";
}

TEST_F(Graph_Verbs, Tell_Of_Curves_That_Are_Too_Short) {
    EXPECT_EQ(Graph({.pairs = {{stock_, stock_}}, .type = 9, .output = output_}), 0);
    EXPECT_TRUE(errors_.starts_with("kestrum-cli: There is a Problem Generating your Graph There"))
        << errors_;
    EXPECT_EQ(std::ranges::count(errors_, '\n'), 1);
}

TEST_F(Graph_Verbs, End_With_1_For_What_Cannot_Be_Read_Or_Written) {
    const std::string missing = bench_.folder.File("none.dat");
    EXPECT_EQ(Graph({.pairs = {{stock_, missing}}, .output = output_}), 1);
    EXPECT_EQ(errors_, missing + ": Flow Data File has Not been Loaded -- File not found\n");
    EXPECT_EQ(Compare({.pairs = {{missing, missing}}}), 1);
    EXPECT_EQ(std::ranges::count(errors_, '\n'), 2) << "both are told of";
    EXPECT_EQ(out_, "");
    EXPECT_EQ(Graph({.pairs = {{stock_, ported_}, {missing, stock_}}, .output = output_}), 1);
    const std::string words = bench_.folder.Write("words.dat", "no data at all\r\n");
    EXPECT_EQ(Graph({.pairs = {{words, stock_}}, .output = output_}), 1);
    EXPECT_TRUE(errors_.starts_with(words + ": ")) << errors_;
    const std::string nowhere = bench_.folder.File("no/out.png");
    EXPECT_EQ(Graph({.pairs = {{stock_, ported_}}, .output = nowhere}), 1);
    EXPECT_EQ(errors_, nowhere + ": Graph has Not been Saved -- Path not found\n");
}

TEST_F(Graph_Verbs, Compare_Prints_The_Table_Of_The_Screen) {
    EXPECT_EQ(Compare({.pairs = {{stock_, ported_}}, .csv = true}), 0);
    bench_.platform.Choose(stock_);
    bench_.Click("Form1.Load_Data");
    bench_.platform.Choose(ported_);
    bench_.Click("Form2.Load_Data");
    bench_.Click("Form50.Command1");
    std::istringstream lines(out_);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "row,Text101,Text102,Text103,Text104,Text105,Text106,Text107,Text108,Text109,"
                    "Text110");
    for (int row = 10; row <= 30; ++row) {
        std::string wanted = bench_.session.numbers.Fmt_Whole(row);
        for (const std::string_view column :
             {"Text101", "Text102", "Text103", "Text104", "Text105", "Text106", "Text107",
              "Text108", "Text109", "Text110"}) {
            wanted += "," + bench_.session.Form50().Array(column)(row).Text();
        }
        std::getline(lines, line);
        EXPECT_EQ(line, wanted);
    }
    EXPECT_FALSE(std::getline(lines, line));
    EXPECT_NE(out_.find("\n26,600,209.0,"), std::string::npos) << "flow of the From test";
    EXPECT_NE(out_.find(",600,31.0,,0.0,\n"), std::string::npos) << "240 less 209";
}

TEST_F(Graph_Verbs, Compare_Prints_Aligned_Columns) {
    EXPECT_EQ(Compare({.pairs = {{stock_, ported_}}, .type = 9}), 0);
    EXPECT_TRUE(out_.starts_with("% Flow\n  From: Test 1 - Stock\n  To:   Test 2 - Ported\n\n"));
    std::istringstream lines(out_);
    std::string line;
    std::size_t width = 0;
    int rows = 0;
    while (std::getline(lines, line)) {
        EXPECT_FALSE(line.ends_with(' '));
        if (line.ends_with("0.0") || line.ends_with(" 0")) {
            ++rows;
            width = width == 0 ? line.size() : width;
            EXPECT_EQ(line.size(), width) << line;
        }
    }
    EXPECT_EQ(rows, 15);
    EXPECT_NE(out_.find("-12.92"), std::string::npos) << "209 over 240";
}

TEST_F(Graph_Verbs, A_Quoted_Part_Number_Stays_One_Field) {
    const std::string odd = Write_Test("odd.dat", "big \"one\"", "209");
    EXPECT_EQ(Compare({.pairs = {{odd, odd}}, .csv = true}), 0);
    EXPECT_NE(out_.find("10,,\"Test 1 - big \"\"one\"\"\",,"), std::string::npos) << out_;
}

struct Wrong_Call {
    const char* name;
    bool draws;
    std::vector<const char*> arguments;
    std::string_view message;
};

TEST(Graph_Options, Wrong_Calls_Are_Told_With_The_Usage) {
    const std::array calls{
        Wrong_Call{"nothing", true, {}, "graph: two files are wanted"},
        Wrong_Call{"one file", false, {"a", "--type", "1"}, "compare: two files are wanted"},
        Wrong_Call{"three", false, {"a", "b", "c", "--type", "1"}, "compare: two files are wanted"},
        Wrong_Call{"no type", true, {"a", "b", "-o", "c.png"}, "graph: --type is missing"},
        Wrong_Call{
            "a type", true, {"a", "b", "--type", "18"}, "graph: --type wants a number from 0"},
        Wrong_Call{
            "a word", true, {"a", "b", "--type", "7x"}, "graph: --type wants a number from 0"},
        Wrong_Call{"below", false, {"a", "b", "--type", "-1"}, "compare: --type wants a number"},
        Wrong_Call{"an axis", true, {"a", "b", "--x", "valve"}, "graph: --x wants lift, intake or"},
        Wrong_Call{"no value", true, {"a", "b", "--x"}, "graph: '--x' wants a value"},
        Wrong_Call{"no picture", true, {"a", "b", "--type", "1"}, "graph: -o is missing"},
        Wrong_Call{"a format", true, {"a", "b", "-o", "c.jpg"}, "graph: -o wants a file that ends"},
        Wrong_Call{"half a pair", true, {"a", "b", "--plus", "c"}, "graph: '--plus' wants a value"},
        Wrong_Call{
            "an empty name", false, {"a", "", "--type", "1"}, "compare: a file name is empty"},
        Wrong_Call{"an option", true, {"--csv"}, "graph: unknown option '--csv'"},
        Wrong_Call{"another", false, {"-o", "c.png"}, "compare: unknown option '-o'"},
        Wrong_Call{"too many",
                   true,
                   {"a", "b", "--type", "1", "-o", "c.png", "--plus", "a", "b", "--plus", "a", "b",
                    "--plus", "a", "b", "--plus", "a", "b"},
                   "graph: a graph takes three pairs"},
    };
    for (const Wrong_Call& call : calls) {
        try {
            static_cast<void>(call.draws ? Graph_Options_From(call.arguments)
                                         : Compare_Options_From(call.arguments));
            ADD_FAILURE() << call.name;
        } catch (const Usage_Error& fault) {
            const std::string_view told = fault.what();
            EXPECT_TRUE(told.starts_with(call.message)) << told;
            EXPECT_NE(told.find("\nusage: kestrum-cli "), std::string_view::npos);
        }
    }
}

TEST(Graph_Options, Options_And_Files_Mix) {
    const std::array arguments{"--metric", "a.dat", "--plus", "c.dat",   "d.dat", "--type", "17",
                               "-o",       "x.SVG", "--x",    "exhaust", "--",    "--b.dat"};
    const Graph_Options options = Graph_Options_From(arguments);
    EXPECT_TRUE(options.metric);
    EXPECT_EQ(options.type, 17);
    EXPECT_EQ(options.x_column, 2);
    EXPECT_EQ(options.output, "x.SVG");
    ASSERT_EQ(options.pairs.size(), 2U);
    EXPECT_EQ(options.pairs[0].to, "--b.dat");
    EXPECT_EQ(options.pairs[1].from, "c.dat");
}

/// Runs the program as a shell does. Gives its status.
int Run_Program(const Temp_Folder& folder, const std::string& arguments,
                const std::string& output = "output") {
    return Status_In_Shell(folder, "CLI " + arguments + " >" + output + " 2>errors");
}

TEST_F(Graph_Verbs, The_Program_Paints_Or_Says_That_It_Cannot) {
    const std::array<std::pair<const char*, std::string_view>, 4> formats{
        {{"png", "\x89PNG\r\n"}, {"svg", "<?xml"}, {"pdf", "%PDF-"}, {"bmp", "BM"}}};
    for (const auto& [ending, magic] : formats) {
        const std::string name = std::string("graph.") + ending;
        const int status =
            Run_Program(bench_.folder, "graph stock.dat ported.dat --type 0 -o " + name);
        const std::string told = bench_.folder.Read("errors");
        if (KESTRUM_HAS_PAINTING) {
            EXPECT_EQ(status, 0);
            EXPECT_EQ(told, "") << "nothing of Qt's own either";
            EXPECT_TRUE(bench_.folder.Read(name).starts_with(magic)) << name;
        } else {
            EXPECT_EQ(status, 1);
            EXPECT_TRUE(told.starts_with(name + ": Graph has Not been Saved -- This program has no "
                                                "painting: "))
                << told;
        }
    }
    EXPECT_EQ(Run_Program(bench_.folder, "graph stock.dat ported.dat"), 2);
    EXPECT_EQ(Run_Program(bench_.folder, "compare stock.dat none.dat --type 0"), 1);
}

TEST_F(Graph_Verbs, Output_That_Is_Lost_Is_Told) {
    EXPECT_EQ(Run_Program(bench_.folder, "compare stock.dat ported.dat --type 0", "/dev/full"), 2);
}

TEST(Script_Printer, Hands_Out_What_Was_Printed) {
    const Script_Result result = Run_Script("click Form60.Command2\nprinter\nprinter");
    ASSERT_EQ(result.events.size(), 2U);
    const nlohmann::json& document = result.events[0].at("printer").at(0);
    EXPECT_EQ(document.at("device"), "Headless Printer");
    const nlohmann::json& step = document.at("pages").at(0).at(0);
    EXPECT_EQ(step.at("op"), "picture");
    EXPECT_EQ(step.at("x"), 0);
    EXPECT_GT(step.at("w"), 0);
    EXPECT_EQ(result.events[1].at("printer").size(), 0U);
}

TEST(Script_Printer, Knows_The_Printers_Of_The_Option) {
    const Temp_Folder folder;
    folder.Write("script", "click Form60.Command2\nprinter\n");
    EXPECT_EQ(Run_Program(folder, "script --printers \"Laser,Other one\" script"), 0);
    EXPECT_NE(folder.Read("output").find(R"({"device":"Laser","pages":)"), std::string::npos);
    EXPECT_EQ(Run_Program(folder, "script --printers \"\" script"), 0);
    EXPECT_NE(folder.Read("output").find(R"("text":"Printer error")"), std::string::npos);
    EXPECT_NE(folder.Read("output").find(R"({"printer":[]})"), std::string::npos);
}

} // namespace

} // namespace kestrum::cli
