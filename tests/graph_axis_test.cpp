#include "graph/axis_number.h"
#include "graph/graph_state.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum {

namespace {

struct Number_Case {
    double value;
    const char* text;
};

TEST(Axis_Number, Is_Cut_Not_Rounded) {
    const Number_Case cases[] = {
        {10.001, "10"},
        {1.0001, "1"},
        {-10.001, "-10"},
        {100.04, "100"},
        {12.345678, "12.34"},
        {99.999, "99.99"},
        {999.95, "999.9"},
        {0.76, ".76"},
        {800.55, "800"},
        {-2.5, "-2.5"},
        {2750, "2750"},
        {0, "0"},
        {1, "1"},
        {-1, "-1"},
        {750, "750"},
        {750.5, "750"},
        {99998, "99998"},
        {123456.7, "123456"},
        {-123456.7, "-123456"},
        {0.0005, ".0005"},
        {0.0123456, ".01234"},
        {0.12345, ".1235"},
        {-0.123456, "-.12345"},
        {1234.56, "1234"},
        {-1234.56, "-1234"},
        {100, "100"},
        {10.5, "10.5"},
    };
    Numeric_Text numbers;
    Numeric_Text comma;
    comma.comma_mode = 1;
    for (const Number_Case& one : cases) {
        EXPECT_EQ(Format_Axis_Number(numbers, one.value), one.text) << one.value;
        std::string text = one.text;
        std::ranges::replace(text, '.', ',');
        EXPECT_EQ(Format_Axis_Number(comma, one.value), text) << one.value;
    }
}

struct Line_Case {
    const char* highest_lift;
    bool metric;
    int lines;
    double x_high;
};

TEST(Graph_Axis, Works_Out_The_X_Lines_From_The_Highest_Lift) {
    const Line_Case cases[] = {
        {"425", false, 17, 425},   {"430", false, 9, 450}, {"700", false, 14, 700},
        {"751", false, 8, 800},    {"13", false, 1, 25},   {"0", false, 10, 0},
        {"17.78", true, 18, 18},   {"25.4", true, 13, 26}, {"20", true, 20, 20},
        {"1000", true, 334, 1002}, {"41", true, 14, 42},
    };
    for (const Line_Case& one : cases) {
        SCOPED_TRACE(one.highest_lift);
        Graph_Bench bench;
        if (one.metric) {
            bench.Click("Main.Check2");
        }
        bench.Fill("Form1.Text101", {"0", one.highest_lift});
        bench.Fill("Form2.Text101", {"0"});
        bench.Click("Form50.Check2");
        bench.Draw(0);
        EXPECT_EQ(Graph_Of(bench.session).x_line_count, one.lines);
        EXPECT_EQ(Graph_Of(bench.session).x_high, one.x_high);
        EXPECT_EQ(Graph_Of(bench.session).x_per_unit, one.x_high / 600);
    }
}

TEST(Graph_Axis, Without_A_Grid_The_X_Axis_Stays_As_It_Is) {
    Graph_Bench bench;
    bench.session.settings.grid.on = false;
    Graph_Of(bench.session).x_line_count = 7;
    bench.Fill("Form1.Text101", {"0", "430"});
    bench.Fill("Form2.Text101", {"0"});
    bench.Click("Form50.Check2");
    bench.Draw(0);
    EXPECT_EQ(Graph_Of(bench.session).x_line_count, 7);
    EXPECT_EQ(Graph_Of(bench.session).x_high, 430);
    EXPECT_TRUE(bench.Lines(0x909090, 1).empty());
    EXPECT_TRUE(bench.Lines(0, 3).empty());
}

/// The columns of one type with a lowest and a highest value, and the limits that follow.
struct Limit_Case {
    const char* name;
    int type;
    const char* intake;
    const char* exhaust;
    std::vector<std::string_view> values; // From the zero lift on
    bool show_big;
    double low;
    double high;
};

TEST(Graph_Axis, Takes_Its_Y_Limits_From_The_Type) {
    const Limit_Case cases[] = {
        {"flow", 0, "Text102", "Text103", {"0", "40", "200"}, false, 0, 210},
        {"flow below a ten", 0, "Text102", "Text103", {"0", "40", "199.9"}, false, 0, 200},
        {"flow by area", 1, "Text109", "Text110", {"0", "70", "700"}, false, 50, 150},
        {"velocity", 5, "Text203", "Text204", {"0", "235", "312"}, false, 0, 320},
        {"velocity, big", 5, "Text203", "Text204", {"235", "235", "312"}, true, 220, 320},
        {"velocity, big, low", 5, "Text203", "Text204", {"7", "7", "312"}, true, 0, 320},
        {"no data, big", 5, "Text203", "Text204", {}, true, 99980, 10},
        {"no swirl, big", 6, "Text207", "Text207", {}, true, 99970, 10},
        {"swirl, big", 6, "Text207", "Text207", {"235", "235", "312"}, true, 210, 320},
        {"swirl below zero", 6, "Text207", "Text207", {"0", "-33.5", "12"}, false, -33.5, 20},
        {"coefficients", 7, "Text111", "Text112", {"0", ".55", ".61"}, false, 0.4, 0.8},
        {"low coefficients", 7, "Text111", "Text112", {"0", ".27", ".61"}, false, 0.2, 0.8},
        {"effective coefficients", 8, "text205", "Text206", {"0", ".45", ".61"}, false, 0.4, 0.8},
    };
    for (const Limit_Case& one : cases) {
        SCOPED_TRACE(one.name);
        Graph_Bench bench;
        for (const std::string sheet : {"Form1.", "Form2."}) {
            bench.Fill(sheet + "Text101", {});
            if (!one.values.empty()) {
                const bool has_zero_lift = one.values.front() == "0";
                bench.Fill(sheet + "Text101", {has_zero_lift ? "0" : "50", "100", "200"});
            }
            bench.Fill(sheet + one.intake, one.values);
            bench.Fill(sheet + one.exhaust, one.values);
        }
        if (one.show_big) {
            bench.Click("Form50.Check4");
        }
        bench.Draw(one.type);
        EXPECT_DOUBLE_EQ(Graph_Of(bench.session).y_low, one.low);
        EXPECT_DOUBLE_EQ(Graph_Of(bench.session).y_high, one.high);
    }
}

TEST(Graph_Axis, Whole_Ends_Of_A_Change_Lie_Outside_Its_Values) {
    Graph_Bench bench;
    bench.Fill("Form1.Text102", {"0", "99.6", "104", "100"}); // -0.4, 4, 0
    bench.Fill("Form2.Text102", {"0", "100", "100", "100"});
    bench.Fill("Form1.Text103", {"0", "100", "100", "100"});
    bench.Fill("Form2.Text103", {"0", "100", "100", "100"});
    bench.Draw(9);
    EXPECT_EQ(Graph_Of(bench.session).y_low, -1) << "the floor of -0.4";
    EXPECT_EQ(Graph_Of(bench.session).y_high, 5);
}

TEST(Graph_Axis, An_L_D_Axis_Goes_By_The_One_Side_That_It_Shows) {
    Graph_Bench bench;
    for (const std::string sheet : {"Form1.", "Form2."}) {
        bench.Fill(sheet + "Text208", {"0", ".101", ".2031", ".3"});
        bench.Fill(sheet + "Text209", {"0", ".1", ".2", ".31"});
        bench.Fill(sheet + "Text102", {"0", "100", "200", "250"});
        bench.Fill(sheet + "Text103", {"0", "90", "120", "130"});
    }
    bench.Draw(0, 2);
    EXPECT_EQ(Graph_Of(bench.session).y_high, 140);
    EXPECT_EQ(Graph_Of(bench.session).x_high, 0.31);
    EXPECT_EQ(bench.Get("Form60.Label9"), "Exhaust Valve Lift as L/D");
    bench.Fill("Form1.Text208", {"0", ".1", ".2", ".3001"});
    bench.Draw(0, 1);
    EXPECT_EQ(Graph_Of(bench.session).y_high, 260);
    EXPECT_EQ(Graph_Of(bench.session).x_high, 0.31) << "Int((.3001 + .00999) * 100) / 100";
    EXPECT_EQ(bench.Get("Form60.Label3"), "<--- Intake Valve Lift as L/D");
}

struct Text_Case {
    int type;
    const char* us_arrow;
    const char* metric_axis;
};

TEST(Graph_Axis, Is_Named_By_Type_And_Units) {
    const Text_Case cases[] = {
        {0, "<--- CFM @ 28\"", "M^3 @ 28\""},
        {3, "<--- Port Energy - Ft/Lbs", "Port Energy - Joules"},
        {4, "<--- Port Energy  Density Ft-Lbs/Sq Inch/Foot",
         "Port Energy Density Joules/Sq mm/Meter"},
        {6, "<--- Swirl RPM", "Swirl RPM"},
        {8, "<--- Effecetive SAE CD", "Effecetive SAE Coefficient of Discharge"},
        {14, "<--- % Effectivet Velocity Change", "% Effective Velocity Change"},
        {17, "<--- % Port Energy Density Change", "% Port Energy Density Change"},
    };
    for (const Text_Case& one : cases) {
        Graph_Bench bench;
        bench.Draw(one.type);
        EXPECT_EQ(bench.Get("Form60.Label4"), one.us_arrow);
        EXPECT_EQ(bench.Get("Form60.Label3"), "<--- Valve Lift Inches * 1000");
        bench.Click("Main.Check2");
        bench.Draw(one.type);
        EXPECT_EQ(bench.Get("Form60.Label8"), one.metric_axis);
        EXPECT_EQ(bench.Get("Form60.Label9"), "Valve Lift mm");
    }
}

TEST(Graph_Axis, A_Zero_X_Counts_By_Its_Text) {
    Graph_Bench bench;
    bench.Fill("Form1.Text101", {"0", "100", "0", "300", "0.0"});
    bench.Fill("Form1.Text102", {"0", "10", "99", "30", "20"});
    bench.Draw(0);
    const Graph_State& graph = Graph_Of(bench.session);
    EXPECT_EQ(graph.from_point_count, 4) << "0, 100, 300 and 0.0, but not the second 0";
    EXPECT_EQ(graph.from_x[2], 300);
    EXPECT_EQ(graph.from_intake[2], 30);
    EXPECT_EQ(graph.from_intake[3], 20);
}

TEST(Graph_Axis, The_Zero_Point_Goes_By_Intake_And_By_Exhaust) {
    Graph_Bench bench;
    for (const std::string sheet : {"Form1.", "Form2."}) {
        bench.Fill(sheet + "Text109", {"0", "70", "80", "90"});
        bench.Fill(sheet + "Text110", {"5", "75", "85", "95"});
        bench.Fill(sheet + "Text101", {"0", "100", "200", "300"});
    }
    bench.Draw(1);
    const Graph_State& graph = Graph_Of(bench.session);
    EXPECT_EQ(graph.from_point_count, 3);
    EXPECT_EQ(graph.from_x[0], 100);
    EXPECT_EQ(graph.from_exhaust[0], 75);
    EXPECT_EQ(graph.to_point_count, 4) << "the To exhaust begins with 5";
    EXPECT_EQ(graph.to_intake[0], 0);
}

/// A % graph from -50 (10 over 20) to 100 for the user to limit.
class User_Axis : public ::testing::Test {
protected:
    User_Axis() {
        bench_.Fill("Form1.Text102", {"0", "10", "40", "20"});
        bench_.Fill("Form2.Text102", {"0", "20", "20", "20"});
        bench_.Fill("Form1.Text103", {"0", "10", "10", "10"});
        bench_.Fill("Form2.Text103", {"0", "10", "10", "11"});
    }

    Events Draw(int type, const char* low, const char* high) {
        bench_.Set("Form50.Text1", low);
        bench_.Set("Form50.Text2", high);
        Events events = bench_.Draw(type);
        std::erase_if(events, [](const std::string& event) {
            return event.find("Problem Generating") != std::string::npos;
        });
        return events;
    }

    [[nodiscard]] std::pair<double, double> Limits() const {
        return {Graph_Of(bench_.session).y_low, Graph_Of(bench_.session).y_high};
    }

    Graph_Bench bench_;
};

using Limits_Pair = std::pair<double, double>;

const std::string lower_high = "plain box [Yes, No]: Your User Supplied High Y_Axis of 0 is Lower "
                               "Than\r\nthe Calculated Y_Axis of 101.0\r\n\r\nDo you still want to "
                               "use Your Y_Axis High Value?";
const std::string higher_low = "plain box [Yes, No]: Your User Supplied Low Y_Axis of 20 is Higher "
                               "Than\r\nthe Calculated Y_Axis of -50.0\r\n\r\nDo you still want to "
                               "use Your Y_Axis Low Value?";

TEST_F(User_Axis, Is_Taken_Where_It_Shows_More) {
    EXPECT_EQ(Draw(9, "-", "-"), Events{});
    EXPECT_EQ(Limits(), Limits_Pair(-50, 101));
    EXPECT_EQ(Draw(9, "-60", "200"), Events{});
    EXPECT_EQ(Limits(), Limits_Pair(-60, 200));
    EXPECT_EQ(Graph_Of(bench_.session).y_per_unit, 260.0 / 600);
    EXPECT_EQ(Draw(9, "", "1-2"), Events{}) << "no text and no number count as none";
    EXPECT_EQ(Limits(), Limits_Pair(-50, 101));
}

TEST_F(User_Axis, Asks_Where_It_Shows_Less) {
    bench_.platform.Answer(Box_Answer::No);
    EXPECT_EQ(Draw(9, "-", "0"), Events{lower_high});
    EXPECT_EQ(Limits(), Limits_Pair(-50, 101));
    bench_.platform.Answer(Box_Answer::Yes);
    EXPECT_EQ(Draw(9, "-", "0"), Events{lower_high});
    EXPECT_EQ(Limits(), Limits_Pair(-50, 0));
    bench_.platform.Answer(Box_Answer::No);
    EXPECT_EQ(Draw(9, "20", "-"), Events{higher_low});
    EXPECT_EQ(Limits(), Limits_Pair(-50, 101));
}

TEST_F(User_Axis, A_Low_End_Above_The_High_One_Is_Reset) {
    bench_.platform.Answer(Box_Answer::Yes);
    bench_.platform.Answer(Box_Answer::Yes);
    EXPECT_EQ(Draw(9, "20", "0"),
              (Events{lower_high, higher_low,
                      "plain box: Low Y_Axis of 20.0 is Equal or Higher Than High Y_Axis of "
                      "0.0\r\n\r\nLow Y_Axis is reset to High Y_Axis - 10"}));
    EXPECT_EQ(Limits(), Limits_Pair(-10, 0));
}

TEST_F(User_Axis, Other_Types_Refuse_A_High_End_Of_Zero_And_Know_No_Low_One) {
    EXPECT_EQ(
        Draw(0, "5", "0"),
        Events{"plain box: For this type of Graph the User Supplied Y_Axis High Value\r\nMUST "
               "BE GREATER THAN ZERO.\r\n\r\nUser Y_Axis High Value ignored."});
    EXPECT_EQ(Limits(), Limits_Pair(0, 50));
    EXPECT_EQ(Draw(0, "5", "300"), Events{});
    EXPECT_EQ(Limits(), Limits_Pair(0, 300));
}

} // namespace

} // namespace kestrum
