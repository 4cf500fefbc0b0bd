#include "chart/chart_page.h"
#include "chart/chart_part.h"
#include "chart/chart_picture.h"
#include "chart/chart_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace kestrum {

namespace {

/// Heads that flow nearly the same, as a shop has them from one port job to the next.
std::vector<Chart_Test> Similar_Heads(std::size_t count, int lifts) {
    std::vector<Chart_Test> tests;
    for (std::size_t test = 0; test < count; ++test) {
        Test_Figures figures;
        figures.name = "Iron head with a long name, bowl blended";
        figures.comment = "A comment of some length, as they are typed beside the bench when the "
                          "head is still warm from the last cut, and nobody reads it over again.";
        figures.intake.valve_diameter = 1.91;
        figures.exhaust.valve_diameter = 1.5;
        for (int row = 1; row <= lifts; ++row) {
            const double lift = 0.6 * row / lifts;
            const double flow =
                220 * std::sin(lift * 2.6) * (1 + 0.004 * static_cast<double>(test));
            figures.intake.points[0].push_back({.lift = lift, .value = flow});
            figures.exhaust.points[0].push_back({.lift = lift, .value = flow * 0.7});
        }
        tests.push_back({.file = "head.dat", .figures = std::move(figures)});
    }
    return tests;
}

Figure_Box Box_Of(const Figure_Text& text) {
    const double width = Figure_Text_Width(text.text, text.size, text.bold) * 0.9;
    const double left = text.anchor == Text_Anchor::Left     ? text.x
                        : text.anchor == Text_Anchor::Centre ? text.x - width / 2
                                                             : text.x - width;
    constexpr double rise = 0.7; // of the letters above the line
    return text.upwards ? Figure_Box{text.x - text.size * rise, text.y - width / 2, text.x,
                                     text.y + width / 2}
                        : Figure_Box{left, text.y - text.size * rise, left + width, text.y};
}

bool Touch(const Figure_Box& one, const Figure_Box& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

/// Whether a text lies over another one, over a curve, or outside.
std::string Fault_Of(const Figure& figure) {
    std::vector<Figure_Text> texts;
    std::vector<Figure_Point> curves;
    for (const Figure::Step& step : figure.Steps()) {
        if (const auto* const text = std::get_if<Figure_Text>(&step)) {
            texts.push_back(*text);
        } else if (const auto* const path = std::get_if<Figure_Path>(&step);
                   path != nullptr && path->points.size() > 4) {
            curves.insert(curves.end(), path->points.begin(), path->points.end());
        }
    }
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const Figure_Box box = Box_Of(texts[at]);
        if (box.left < 0 || box.right > figure.width || box.bottom > figure.height) {
            return texts[at].text + " lies outside";
        }
        for (std::size_t other = 0; other < at; ++other) {
            if (Touch(box, Box_Of(texts[other]))) {
                return texts[at].text + " lies over " + texts[other].text;
            }
        }
        for (const Figure_Point& point : curves) {
            if (Touch(box, {point.x, point.y, point.x, point.y})) {
                return texts[at].text + " lies over a curve";
            }
        }
    }
    return {};
}

bool Has_Text(const Figure& figure, std::string_view words, std::optional<int> colour = {}) {
    return std::ranges::any_of(figure.Steps(), [&](const Figure::Step& step) {
        const auto* const text = std::get_if<Figure_Text>(&step);
        return text != nullptr && text->text == words &&
               text->colour == colour.value_or(text->colour);
    });
}

TEST(Chart_Picture, Has_No_Text_Over_A_Curve_Or_Another_Text) {
    for (const std::size_t count : {1U, 2U, 4U, 8U}) {
        Chart_Request request;
        request.cam_lift = 0.48; // beside a quarter of the valve
        const std::vector<Chart_Test> tests = Similar_Heads(count, 6);
        const Chart chart = Chart_Of(tests, request);
        for (const Figure_Point size : {Figure_Point{400, 254}, Figure_Point{511, 300}, //
                                        Figure_Point{1400, 700}}) {
            Figure figure(size.x, size.y);
            const Chart_Layout layout = Layout_Of(chart, {}, {0, 0, size.x, size.y});
            Draw_Curves(figure, layout);
            Draw_Reading(figure, layout, 0.3);
            EXPECT_EQ(Fault_Of(figure), "") << count << " tests, " << size.x;
        }
    }
}

TEST(Chart_Picture, Reads_All_Curves_At_A_Lift) {
    const std::vector<Chart_Test> tests = Similar_Heads(2, 6);
    Chart_Request request;
    request.lift_unit = Lift_Unit::Thousandth;
    request.flow_unit = Flow_Unit::Litres;
    request.baseline = 1; // which keeps its colour
    Chart chart = Chart_Of(tests, request);
    const Chart_Layout layout = Layout_Of(chart, {.gain_in_percent = true}, {0, 0, 500, 400});
    Figure figure(500, 400);
    Draw_Reading(figure, layout, 300);
    EXPECT_TRUE(Has_Text(figure, "at 300 thou"));
    // 220 cfm x sin(0.78), 0.4719474 l/s in a cfm
    EXPECT_TRUE(Has_Text(figure, "73.0", Light_Chart().Curve(0)));
    EXPECT_TRUE(Has_Text(figure, "73.3", Light_Chart().Curve(1)));
    EXPECT_TRUE(Has_Text(figure, "-0.4 %", Light_Chart().Curve(0)));
    EXPECT_EQ(layout.Lift_At({layout.main.X(301), 200}, 3), 300);
    EXPECT_FALSE(layout.Lift_At({layout.main.box.right + 9, 200}, 3));
    Figure beyond(500, 400);
    Draw_Reading(beyond, layout, 599.999999999999);
    EXPECT_FALSE(Has_Text(beyond, "\xE2\x80\x93"));
    chart.tests[0].sides.exhaust.curve = {};
    Draw_Reading(beyond, layout, 300);
    EXPECT_TRUE(Has_Text(beyond, "\xE2\x80\x93"));
}

TEST(Chart_Picture, Says_So_When_No_Test_Has_Points) {
    const std::vector<Chart_Test> tests = Similar_Heads(2, 6);
    Chart_Request request;
    request.quantity = Chart_Quantity::Swirl;
    const Chart chart = Chart_Of(tests, request);
    const std::vector<Figure> pages = Chart_Pages(chart, {}, {});
    EXPECT_TRUE(Has_Text(pages.front(), "None of the tests says anything about this"));
    EXPECT_EQ(Fault_Of(pages.front()), "");
}

TEST(Chart_Picture, Shows_A_Part_And_Nothing_Beyond_It) {
    const Chart_Part whole{.first_lift = 0, .last_lift = 0.6, .low = 0, .high = 250};
    const Chart_Part part =
        Zoomed(whole, whole, {.lift = 0.2, .value = 250}, {.lifts = 2, .values = 5});
    EXPECT_NEAR(part.first_lift, 0.1, 1e-12); // 0.2 stays a third from the left
    EXPECT_NEAR(part.last_lift, 0.4, 1e-12);
    EXPECT_NEAR(part.low, 200, 1e-12);
    EXPECT_EQ(Zoomed(part, whole, {.lift = 0.4, .value = 200}, {.lifts = .1, .values = .1}), whole);
    EXPECT_NEAR(Moved(part, whole, {.lift = 1, .value = -30}).last_lift, 0.6, 1e-12);
    EXPECT_NEAR(Moved(part, whole, {.lift = 1, .value = -30}).low, 170, 1e-12);

    const std::vector<Chart_Test> tests = Similar_Heads(3, 6);
    const Chart chart = Chart_Of(tests, {});
    const Chart_Layout layout = Layout_Of(chart, {.part = part}, {0, 0, 500, 400});
    Figure figure(500, 400);
    Draw_Curves(figure, layout);
    for (const Figure::Step& step : figure.Steps()) {
        const auto* const path = std::get_if<Figure_Path>(&step);
        for (std::size_t at = 0; path != nullptr && path->points.size() > 20 && at < 20; ++at) {
            EXPECT_GE(path->points[at].x, layout.main.box.left - 1e-9);
            EXPECT_GE(path->points[at].y, layout.main.box.top - 1e-9);
        }
    }
    EXPECT_EQ(Fault_Of(figure), "");
}

TEST(Chart_Page, Holds_Eight_Tests_And_Goes_On_Where_It_Must) {
    for (const std::size_t count : {1U, 2U, 4U, 8U}) {
        for (const int lifts : {6, 10, 15}) {
            const std::vector<Chart_Test> tests = Similar_Heads(count, lifts);
            Chart_Request request;
            request.cam_lift = 0.5;
            const Chart chart = Chart_Of(tests, request);
            const std::vector<Figure> pages =
                Chart_Pages(chart, {}, {.title = "A title", .shop = "A shop", .shop_line = "Here"});
            EXPECT_EQ(pages.size(), count == 8 && lifts > 10 ? 2U : 1U) << count << ' ' << lifts;
            for (const Figure& page : pages) {
                EXPECT_EQ(Fault_Of(page), "") << count << " tests, " << lifts << " lifts";
                EXPECT_TRUE(Has_Text(page, "A shop"));
            }
        }
    }
}

TEST(Chart_Page, Has_The_Logo_Beside_The_Shop) {
    const std::vector<Chart_Test> tests = Similar_Heads(1, 6);
    const Figure_Picture logo{.box = {0, 0, 400, 100}, .bytes = "\x89PNG\r\n1"};
    const std::vector<Figure> pages = Chart_Pages(Chart_Of(tests, {}), {}, {.logo = logo});
    const std::string svg = Figure_Svg(Below_Each_Other(pages));
    EXPECT_NE(svg.find(R"(width="120" height="30" href="data:image/png;base64,iVBORw0KMQ=="/>)"),
              std::string::npos);
}

TEST(Chart_Table, Says_What_Each_Test_Gains) {
    std::vector<Chart_Test> tests = Similar_Heads(2, 6);
    tests[1].figures.name = "A \"wild\"\tone";
    Chart_Request request;
    request.shows.exhaust = false;
    request.baseline = 1;
    const Chart chart = Chart_Of(tests, request);
    const std::string text =
        Separated_Text(std::array{Summary_Table(chart, Table_Detail::Whole)}, '\t');
    EXPECT_EQ(text,
              "Test\tIntake peak cfm\tIntake peak at in\tIntake peak gain\tIntake peak gain %\t"
              "Intake mean cfm\tIntake mean gain\tIntake mean gain %\n"
              "1 Iron head with a long name, bowl blended\t220.0\t0.600\t-0.9\t-0.4\t139.5\t-0.6\t"
              "-0.4\n"
              "\"2 A \"\"wild\"\"\tone\"\t220.9\t0.600\t\t\t140.1\t\t\n");
}

/// A colour as an eye sees it: brightness and two hues of even steps.
using Seen = std::array<double, 3>;
using Eye = std::array<double, 9>;

double Linear(int part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Seen Seen_By(const Eye& eye, int colour) {
    const Seen light{Linear(colour >> 16 & 255), Linear(colour >> 8 & 255), Linear(colour & 255)};
    const auto mixed = [&light](const double* shares) {
        return shares[0] * light[0] + shares[1] * light[1] + shares[2] * light[2];
    };
    const Seen rgb{std::clamp(mixed(&eye[0]), 0.0, 1.0), std::clamp(mixed(&eye[3]), 0.0, 1.0),
                   std::clamp(mixed(&eye[6]), 0.0, 1.0)};
    const auto even = [&rgb](double r, double g, double b) {
        const double sum = r * rgb[0] + g * rgb[1] + b * rgb[2];
        return sum > 0.008856 ? std::cbrt(sum) : 7.787 * sum + 16.0 / 116;
    };
    const double x = even(0.4339, 0.3762, 0.1899);
    const double y = even(0.2126, 0.7152, 0.0722);
    const double z = even(0.0178, 0.1095, 0.8727);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// Machado, Oliveira and Fernandes (2009), severity 1: all cones, and without one of them.
constexpr std::array<Eye, 4> eyes{
    {{1, 0, 0, 0, 1, 0, 0, 0, 1},
     {.367322, .860646, -.227968, .280085, .672501, .047413, -.011820, .042940, .968881},
     {.152286, 1.052583, -.204868, .114503, .786281, .099216, -.003882, -.048116, 1.051998},
     {1.255528, -.076749, -.178779, -.078411, .930809, .147602, .004733, .691367, .303900}}};

TEST(Chart_Colours, Tell_Eight_Tests_Apart_For_All_Eyes_And_In_Grey) {
    for (const Chart_Colours* const colours : {&Light_Chart(), &Dark_Chart()}) {
        std::set<std::vector<double>> dashes;
        const Seen ground = Seen_By(eyes[0], colours->ground);
        for (std::size_t one = 0; one < most_chart_tests; ++one) {
            dashes.insert(Dashes_Of(one, 1));
            const Seen grey = Seen_By(eyes[0], colours->Curve(one));
            EXPECT_GT(std::abs(grey[0] - ground[0]), 35) << one;
            for (std::size_t other = 0; other < one; ++other) {
                EXPECT_GT(std::abs(grey[0] - Seen_By(eyes[0], colours->Curve(other))[0]), 4)
                    << one << " and " << other << " in grey";
                for (const Eye& eye : eyes) {
                    const Seen a = Seen_By(eye, colours->Curve(one));
                    const Seen b = Seen_By(eye, colours->Curve(other));
                    EXPECT_GT(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), 20)
                        << one << " and " << other << " for eye " << &eye - eyes.data();
                }
            }
        }
        EXPECT_EQ(dashes.size(), most_chart_tests);
    }
}

} // namespace

} // namespace kestrum
