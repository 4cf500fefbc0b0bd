#include "chart/axis_scale.h"
#include "chart/end_labels.h"
#include "cli/chart_run.h"
#include "cli/library_run.h"
#include "cli/usage_error.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace kestrum::cli {

namespace {

using nlohmann::json;

/// The published flow of two heads, and one with a dip. Expected numbers are those of SciPy's
/// `PchipInterpolator`, its `integrate`, and numpy's trapezoid rule.
constexpr std::string_view ford = "lift,intake\n.1,55\n.2,110\n.3,142\n.4,160\n.5,157\n";
constexpr std::string_view jeep =
    "lift,intake,exhaust\n.1,66,50\n.2,122,88\n.3,168,114\n.4,186,130\n"
    ".5,189,134\n.6,192,138\n";

/// SVG is written without one.
struct No_Painter : Painter {
    using Painter::Picture_Of; // of several pages

    std::string Picture_Of(const Drawing& /*drawing*/, Picture_Format /*format*/,
                           const std::optional<Placed_Logo>& /*logo*/) override {
        Fail(error::invalid_picture);
    }
};

class Chart_Verb : public ::testing::Test {
protected:
    std::string Write(std::string_view name, std::string_view bytes) {
        return bench.folder.Write(name, bytes);
    }

    template <typename Options, typename Run>
    json Json_Of(Run run, const Options& options) {
        out.str("");
        errors.str("");
        status = run(options);
        return json::parse(out.str());
    }

    json Chart_With(std::vector<std::string> words) {
        words.emplace_back("--json");
        std::vector<const char*> arguments;
        arguments.reserve(words.size());
        for (const std::string& word : words) {
            arguments.push_back(word.c_str());
        }
        return Json_Of(
            [this](const Chart_Options& options) {
                No_Painter painter;
                return Run_Chart(options, painter, out, errors);
            },
            Chart_Options_From(arguments));
    }

    /// Lines of the library.
    std::vector<json> Listed(Library_Options options) {
        out.str("");
        options.folder = bench.folder.Path();
        options.format = Output_Format::Json;
        status = Run_Library(options, out, errors);
        std::vector<json> entries;
        std::istringstream lines(out.str());
        for (std::string line; std::getline(lines, line);) {
            entries.push_back(json::parse(line));
        }
        return entries;
    }

    Test_Bench bench;
    std::ostringstream out;
    std::ostringstream errors;
    int status = 0;
};

TEST_F(Chart_Verb, Means_Gains_And_Events_Are_Those_Of_The_Exact_Curve) {
    const json chart = Chart_With(
        {Write("ford.csv", ford), Write("jeep.csv", jeep), "--cam", ".45", "--step", "0.25"});
    EXPECT_EQ(status, 0);
    const json& first = chart["tests"][0]["intake"];
    const json& second = chart["tests"][1]["intake"];
    EXPECT_NEAR(first["mean"], 110.16666666666666, 1e-9);
    EXPECT_NEAR(second["mean"], 128.43333333333334, 1e-9); // up to where the first one ends
    EXPECT_NEAR(first["event_mean"], 98.36462112581444, 1e-9);
    EXPECT_NEAR(second["event_mean"], 114.74247086287953, 1e-9);
    EXPECT_NEAR(chart["tests"][1]["exhaust"]["event_mean"], 81.037095283227, 1e-9);
    EXPECT_EQ(first["peak"], json({0.4, 160}));
    EXPECT_NEAR(chart["tests"][1]["ratio"], 98.22222222222221 / 128.43333333333334, 1e-9);
    EXPECT_TRUE(chart["tests"][0]["ratio"].is_null());

    ASSERT_EQ(chart["table"].size(), 2U); // .25 and .5, and no .75
    const json& row = chart["table"][0];
    EXPECT_NEAR(row["intake"][0], 128.1774712643678, 1e-9);
    EXPECT_NEAR(row["intake_gain"][1], 148.07935049019608 - 128.1774712643678, 1e-9);
    EXPECT_TRUE(row["intake_gain"][0].is_null());
    EXPECT_TRUE(row["exhaust"][0].is_null());
    EXPECT_TRUE(row["exhaust_gain"][1].is_null());
}

TEST_F(Chart_Verb, A_Range_That_A_Test_Does_Not_Cover_Has_No_Mean) {
    const json chart = Chart_With({Write("ford.csv", ford), Write("jeep.csv", jeep), "--to", ".6",
                                   "--cam", ".6", "--side", "intake"});
    EXPECT_TRUE(chart["tests"][0]["intake"]["mean"].is_null());
    EXPECT_TRUE(chart["tests"][0]["intake"]["event_mean"].is_null());
    EXPECT_NEAR(chart["tests"][1]["intake"]["mean"], 138.77777777777777, 1e-9);
    EXPECT_FALSE(chart["tests"][1].contains("exhaust"));
    EXPECT_EQ(chart["table"].size(), 5U); // the lifts of the baseline
}

/// A dip and a rise: the curve turns at its points and nowhere else, ends included.
TEST(Monotone_Curve, Follows_A_Dip_Without_Overshooting) {
    const Monotone_Curve curve({{.1, 3}, {.25, 1}, {.3, 4}, {.55, 1}, {.6, 5}});

    struct Value {
        double lift;
        double value;
    };

    for (const Value& value :
         {Value{.12, 2.301925925925926}, Value{.2, 1.0740740740740742}, Value{.28, 2.944},
          Value{.5, 1.312}, Value{.58, 2.9056}, Value{.6 * (1 + 1e-10), 5}}) {
        EXPECT_NEAR(curve.At(value.lift).value_or(0), value.value, 1e-12) << value.lift;
    }
    EXPECT_NEAR(curve.Mean(.1, .6).value_or(0), 2.210277777777778, 1e-12);
    EXPECT_FALSE(curve.At(.61));
    EXPECT_FALSE(curve.Mean(.3, .3));
    EXPECT_FALSE(curve.Event_Mean(.5)); // nothing is known of the closed valve
}

/// A file at 7 inches flows half of what it flows at 28, and its pressure is known only if named.
TEST_F(Chart_Verb, Pressures_And_Units_Follow_The_Quantity) {
    const std::string file =
        Write("part.dat", "Text102_0 =   A part  \r\nText102_3 = 2\r\nText106_6 = 1\r\n"
                          "Text108_7 = 7\r\nText108_8 = 7\r\nText101_17 = 100\r\n"
                          "Text106_17 = 50\r\nText101_18 = 200\r\nText106_18 = 80\r\n"
                          "Text207_18 = -300\r\n");
    const json flow = Chart_With({file, "--at", "28"});
    EXPECT_EQ(flow["tests"][0]["name"], "A part");
    EXPECT_EQ(flow["tests"][0]["intake"]["points"], json({{0.1, 100}, {0.2, 160}}));
    const json metric = Chart_With({file, "--units", "metric"});
    EXPECT_EQ(metric["unit"], "m3/min");
    EXPECT_NEAR(metric["tests"][0]["intake"]["points"][0][0], 2.54, 1e-12);
    EXPECT_NEAR(metric["tests"][0]["intake"]["points"][0][1], 2.831684659, 1e-12);
    // 50 cfm through 2 x pi x 0.1 square inches is 79.58; over 146 that is 0.545, at 28 twice that.
    const json coefficient = Chart_With({file, "--quantity", "cd", "--at", "10"});
    EXPECT_NEAR(coefficient["tests"][0]["intake"]["points"][0][1], 1.09, 1e-12);
    const json swirl = Chart_With({file, "--quantity", "swirl"});
    EXPECT_EQ(swirl["tests"][0]["intake"]["points"], json({{0.2, -300}}));
    EXPECT_TRUE(swirl["tests"][0]["exhaust"]["peak"].is_null());
    // No throat, stem and seat are named, and no port.
    for (const char* const quantity : {"effective-cd", "velocity"}) {
        const json nothing = Chart_With({file, "--quantity", quantity});
        EXPECT_TRUE(nothing["tests"][0]["intake"]["points"].empty()) << quantity;
    }
}

TEST_F(Chart_Verb, Metric_Files_Go_Through_The_Switch_Of_The_Units) {
    const std::string file = Write("mm.dat", "Text102_3 = 50.8\r\nText101_17 = 2.54\r\n"
                                             "Text106_17 = 2.8317\r\n");
    const json point = Chart_With({file, "--metric"})["tests"][0]["intake"]["points"][0];
    EXPECT_NEAR(point[0], 0.1, 1e-12);
    EXPECT_NEAR(point[1], 100, 1e-9); // two decimals in cfm
    EXPECT_NEAR(Chart_With({file})["tests"][0]["intake"]["points"][0][0], 0.00254, 1e-12);
}

/// A flow that comes out as 0 takes its depression along. A second calculation would then correct
/// it by the pressures of the head, which make ten times of it, and find a point.
TEST_F(Chart_Verb, A_Test_Is_Calculated_Once) {
    const std::string file =
        Write("once.dat", "Text102_8 = \r\nText108_7 = .01\r\nText108_8 = 1\r\n"
                          "Text101_17 = 100\r\nText106_17 = .01\r\nText210_17 = 4000\r\n");
    EXPECT_TRUE(Chart_With({file})["tests"][0]["intake"]["points"].empty());
    EXPECT_TRUE(Chart_With({file, "--metric"})["tests"][0]["intake"]["points"].empty());
}

TEST_F(Chart_Verb, The_Files_That_Can_Be_Read_Make_The_Chart) {
    const json chart = Chart_With({bench.folder.Path() + "/none.dat", Write("ford.csv", ford)});
    EXPECT_EQ(status, 1);
    EXPECT_EQ(chart["tests"].size(), 1U);
    EXPECT_NE(errors.str().find("none.dat: File not found"), std::string::npos);
}

TEST_F(Chart_Verb, Wrong_Calls_Are_Refused) {
    const std::vector<std::vector<const char*>> calls{
        {"a.dat", "--at", "0"},
        {"a.dat", "--to", "inf"},
        {"a.dat", "--csv", "--json"},
        {"a.dat", "-o", "x.gif"},
        {"a.dat", "--quantity", "hp"},
        {},
        {"1", "2", "3", "4", "5", "6", "7", "8", "9"}};
    for (const std::vector<const char*>& call : calls) {
        EXPECT_THROW(static_cast<void>(Chart_Options_From(call)), Usage_Error);
    }
    for (const std::vector<const char*>& call :
         std::vector<std::vector<const char*>>{{"f", "--jobs", "0"},
                                               {"f", "--jobs", "-99999999999"},
                                               {"f", "--sort", "colour"},
                                               {"f", "g"},
                                               {}}) {
        EXPECT_THROW(static_cast<void>(Library_Options_From(call)), Usage_Error);
    }
}

TEST_F(Chart_Verb, The_Library_Lists_What_It_Finds_And_Why_Not) {
    namespace fs = std::filesystem;
    const fs::path folder = bench.folder.Path();
    fs::create_directory(folder / "sub");
    Write("sub/Jeep.CSV", jeep);
    Write("ford.csv", ford);
    Write("empty.dat", "");
    Write("notes.txt", "no test");
    Write("valve.dat", "Text102_3 = \r\nText104_3 = 1.6\r\nText108_8 = 25\r\n");
    fs::create_directory_symlink("..", folder / "sub" / "circle");
    fs::create_symlink("nowhere", folder / "lost.dat");

    const std::array many{"folder", "--jobs", "99999999999"};
    for (const unsigned jobs : {1U, 3U, Library_Options_From(many).jobs}) {
        const std::vector<json> entries = Listed({.jobs = jobs});
        EXPECT_EQ(status, 1);
        ASSERT_EQ(entries.size(), 5U);
        EXPECT_EQ(entries[0]["file"], "empty.dat");
        EXPECT_EQ(entries[0]["points"], 0);
        EXPECT_EQ(entries[1]["name"], "ford.csv");
        EXPECT_TRUE(entries[1]["pressure"].is_null());
        EXPECT_NEAR(entries[1]["intake_mean"], 110.16666666666666, 1e-9);
        EXPECT_EQ(entries[1]["intake_peak_lift"], 0.4);
        EXPECT_EQ(entries[2],
                  json({{"file", "lost.dat"}, {"format", "dat"}, {"problem", "File not found"}}));
        EXPECT_EQ(entries[3]["file"], "sub/Jeep.CSV");
        EXPECT_EQ(entries[3]["points"], 6);
        EXPECT_TRUE(entries[4]["intake_valve"].is_null()); // an empty value names nothing
        EXPECT_EQ(entries[4]["exhaust_valve"], 1.6);
        EXPECT_EQ(entries[4]["pressure"], 25);
    }
    const std::vector<json> sorted =
        Listed({.sort = Library_Column_Named("intake_mean"), .jobs = 1});
    EXPECT_EQ(sorted[0]["file"], "ford.csv");
    EXPECT_EQ(sorted[2]["file"], "empty.dat");
    EXPECT_EQ(sorted[4]["file"], "lost.dat");
    EXPECT_EQ(Listed({.where = "jeep", .jobs = 1}).size(), 1U);
}

TEST_F(Chart_Verb, A_Picture_Names_Its_Tests_As_Text) {
    const std::string picture = bench.folder.Path() + "/chart.svg";
    static_cast<void>(Chart_With({Write("a&b.csv", ford), Write("jeep.csv", jeep), "-o", picture}));
    const std::string svg = bench.folder.Read("chart.svg");
    EXPECT_NE(svg.find(">1 a&amp;b.csv"), std::string::npos);
    EXPECT_NE(svg.find(">2 jeep.csv  ex<"), std::string::npos);
    EXPECT_NE(svg.find(">138<"), std::string::npos);
}

/// What stands behind a call in the document.
std::string Worked_Example(std::string_view call) {
    std::ifstream document(KESTRUM_SOURCE "/docs/automation.md");
    std::string printed;
    bool inside = false;
    for (std::string line; std::getline(document, line);) {
        inside = inside ? line.starts_with("    ") : line.starts_with(call);
        if (inside && !line.starts_with("    $ ") && !line.starts_with("        ex")) {
            printed += line.substr(4) + "\n";
        }
    }
    return printed;
}

TEST_F(Chart_Verb, Prints_The_Worked_Examples_Of_The_Document) {
    std::filesystem::current_path(KESTRUM_SOURCE);
    const std::array call{"examples/jeep_4l_stock_table_1.dat",
                          "examples/jeep_4l_stock_table_2.dat",
                          "examples/jeep_4l_stock_table_3.dat",
                          "--side",
                          "intake",
                          "--cam",
                          ".5"};
    No_Painter painter;
    EXPECT_EQ(Run_Chart(Chart_Options_From(call), painter, out, errors), 0);
    EXPECT_EQ(out.str(), Worked_Example("    $ kestrum-cli chart"));
    out.str("");
    const std::array folder{"examples"};
    EXPECT_EQ(Run_Library(Library_Options_From(folder), out, errors), 0);
    EXPECT_EQ(out.str(), Worked_Example("    $ kestrum-cli library"));
}

/// Labels keep their order, stay within the frame and never touch.
TEST(End_Labels, Find_Places_Beside_Each_Other) {
    std::vector<End_Label> labels(4);
    const std::array wanted{100.0, 101.0, 30.0, 99.0};
    for (std::size_t at = 0; at < labels.size(); ++at) {
        labels[at].wanted = wanted.at(at);
    }
    Spread(labels, 10, 0, 105);
    const std::array places{30.0, 85.0, 95.0, 105.0};
    for (std::size_t at = 0; at < labels.size(); ++at) {
        EXPECT_NEAR(labels[at].place, places.at(at), 1e-9);
    }
}

TEST(Axis_Scale, Ends_At_Round_Numbers) {
    struct Case {
        double low, high, step, first, last;
        int decimals;
    };

    for (const Case& range :
         {Case{0, 238, 50, 0, 250, 0}, Case{0, .6, .1, 0, .6, 1}, Case{-3.2, 24, 10, -10, 30, 0},
          Case{0, 1.1, .2, 0, 1.2, 1}, Case{5, 5, .5, 5, 7.5, 1}}) {
        const Axis_Scale scale = Round_Scale(range.low, range.high, range.step == 10 ? 3 : 6);
        EXPECT_NEAR(scale.step, range.step, 1e-12) << range.high;
        EXPECT_NEAR(scale.low, range.first, 1e-12) << range.high;
        EXPECT_NEAR(scale.high, range.last, 1e-12) << range.high;
        EXPECT_EQ(scale.decimals, range.decimals) << range.high;
    }
}

} // namespace

} // namespace kestrum::cli
