#include "core/field_handlers.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum {

namespace {

const std::string blank_box = "exclamation box: This Field can not be Blank / Empty.";
const std::string zero_box =
    "exclamation box: Note: This Field can not be Blank / Empty and,\r\nMust have a Numerical "
    "Value other than Zero.";

struct Typing_Case {
    const char* name;
    std::string_view field;
    std::string_view before; // empty: what the field has at the start
    std::string_view keys;
    std::string_view after;
    int beeps;
};

void Expect_Typing(Test_Bench& bench, const Typing_Case& c) {
    if (!c.before.empty()) {
        bench.Set(c.field, c.before);
    }
    bench.Type(c.field, c.keys);
    EXPECT_EQ(bench.Get(c.field), c.after) << c.name;
    const Events events = bench.Take_Events();
    EXPECT_EQ(std::ranges::count(events, "beep"), c.beeps) << c.name;
}

TEST(Typing, Filters_Judge_Each_Key) {
    constexpr Typing_Case cases[] = {
        {"second point", "Form1.Text102(1)", "203", "1.2.3", "1.23", 1},
        {"point over a selected point", "Form1.Text106(17)", "35.8", ".5", "5", 1},
        {"the first digit takes the selection away", "Form1.Text106(17)", "35.8", "36.5", "36.5",
         0},
        {"foreign mark", "Form1.Text106(17)", "35.8", "3,6", "36", 1},
        {"letters", "Form1.Text102(3)", "2.02", "2x0-2", "202", 2},
        {"digits only", "Main.Text111(3)", "8", "1.2", "12", 1},
        {"minus in the middle", "Form1.Text207(17)", "1250", "12-5", "12-5", 0},
        {"second minus", "Form1.Text207(17)", "1250", "-1-", "-1", 1},
        {"minus over a selected minus", "Form1.Text207(17)", "-", "-5", "5", 1},
        {"no minus in a flow", "Form1.Text106(17)", "35.8", "-5", "5", 1},
        {"backspace", "Form1.Text106(17)", "35.8", "12\b3", "13", 0},
        {"backspace over the selection", "Form1.Text106(17)", "35.8", "\b", "", 0},
        {"backspace takes a whole letter", "Form1.Text102(0)", "E7TE", "AÖ\b", "A", 0},
        {"free text", "Form1.Text102(0)", "E7TE", "Öl-7 €", "Öl-7 €", 0},
        {"a field that does not select", "Main.Text33", "Test", " 2", "Test 2", 0},
        {"a point may come again when it was erased", "Form1.Text106(17)", "35.8", "1.\b.5.\b.6",
         "1.6", 2},
        {"a minus may come again when it was erased", "Form1.Text207(17)", "-", "\b-5-\b\b-7", "-7",
         1},
        {"Enter in a field of one line", "Form1.Text106(17)", "35.8", "7\r", "7", 0},
        {"Enter in the comment", "Form1.Text38", "x", "a\rb", "a\r\nb", 0},
        {"backspace over a line break", "Form1.Text38", "x", "a\r\b!", "a!", 0},
        // A locked field takes no key, but its filter is heard.
        {"locked result", "Main.Text101(3)", "0.5475", "6.x", "0.5475", 2},
        {"locked caption with a filter", "Form1.Text106(4)", "Intake", "5a", "Intake", 1},
        {"locked result without a filter", "Form1.Text113(11)", "-", "5a", "-", 0},
    };
    Test_Bench bench;
    for (const Typing_Case& c : cases) {
        Expect_Typing(bench, c);
    }
}

TEST(Typing, Comma_Mode_Takes_One_Comma_And_No_Dot) {
    Test_Bench bench({.point = ","});
    Expect_Typing(bench, {"both marks", "Form1.Text106(17)", "", "1.2,3,4", "12,34", 2});
    Expect_Typing(bench, {"signed", "Form1.Text207(17)", "", "-1,5.", "-1,5", 1});
}

TEST(Typing, A_Click_Places_The_Caret_Where_Tab_Selects) {
    Test_Bench bench;
    Control& flow = bench.At("Form1.Text106(17)");
    EXPECT_EQ(Select_Field_Text(bench.session, flow), (Selection{.start = 0, .length = 4}));
    bench.session.mouse_down = true;
    EXPECT_EQ(Select_Field_Text(bench.session, flow), (Selection{.start = 4, .length = 0}));
    // A box swallows the release of the button: it must not stop all selecting from then on.
    bench.Set("Form1.Text106(18)", "");
    EXPECT_EQ(bench.Leave("Form1.Text106(18)"), (Events{"focus Form1.Text106(18)", blank_box}));
    EXPECT_FALSE(bench.session.mouse_down);
}

TEST(Typing, Cells_Have_The_Handlers_Of_Their_Row) {
    struct Case {
        std::string_view field;
        std::string_view refused; // keys that beep, of "5", ".", "-" and "x"
        bool selects;
    };

    constexpr Case cases[] = {
        {"Form1.Text101(16)", "-x", true}, {"Form1.Text102(0)", "", true},
        {"Form1.Text102(1)", "-x", true},  {"Form1.Text102(2)", "", true},
        {"Form1.Text102(5)", "", false},   {"Form1.Text102(10)", "", true},
        {"Form1.Text104(0)", "-x", true},  {"Form1.Text104(2)", "", false},
        {"Form1.Text106(0)", "-x", true},  {"Form1.Text106(4)", "-x", true},
        {"Form1.Text106(5)", "", false},   {"Form1.Text106(6)", ".-x", true},
        {"Form1.Text107(30)", "-x", true}, {"Form1.Text108(6)", ".-x", true},
        {"Form1.Text108(8)", "-x", true},  {"Form1.Text108(16)", "", false},
        {"Form1.Text110(5)", "-x", true},  {"Form1.Text110(8)", "", false},
        {"Form1.Text112(6)", "-x", true},  {"Form1.Text202(4)", "-x", true},
        {"Form1.Text204(5)", "-x", true},  {"Form1.Text207(16)", "x", true},
        {"Form1.Text210(30)", "-x", true}, {"Form1.Text211(16)", "-x", true},
        {"Main.Text101(8)", "-x", true},   {"Main.Text103(3)", "-x", true},
        {"Main.Text109(3)", ".-x", true},  {"Main.Text111(3)", ".-x", true},
        {"Main.Text102(9)", "-x", true},   {"Main.Text106(9)", "-x", true},
        {"Main.Text102(8)", "", false},    {"Main.Text94", "", false},
    };
    Test_Bench bench;
    for (const Case& c : cases) {
        Control& field = bench.At(c.field);
        field.Set_Text("");
        std::string refused;
        for (const char key : {'5', '.', '-', 'x'}) {
            const auto code = static_cast<char32_t>(key);
            if (!Passes_Filter(bench.session.numbers, field, code)) {
                refused += key;
            }
        }
        EXPECT_EQ(refused, c.refused) << c.field;
        EXPECT_EQ(field.Entry().selects_on_focus, c.selects) << c.field;
    }
}

struct Leave_Case {
    std::string_view field;
    std::string_view text;
    Events events;
};

void Expect_Leave(Test_Bench& bench, const Leave_Case& c) {
    bench.Set(c.field, c.text);
    EXPECT_EQ(bench.Leave(c.field), c.events) << c.field << " \"" << c.text << '"';
    EXPECT_EQ(bench.Get(c.field), c.text) << "a check changes no text";
}

TEST(Leaving, A_Dimension_Must_Not_Be_Zero) {
    Test_Bench bench;
    const Events refused{"focus Main.Text104(3)", zero_box};
    for (const std::string_view text : {"", "0", "0.0", "-", ".", "-0.0", "00", ",", "0,00"}) {
        Expect_Leave(bench, {"Main.Text104(3)", text, refused});
    }
    for (const std::string_view text : {".5", "4.125", "-1", "abc", "0x"}) {
        Expect_Leave(bench, {"Main.Text104(3)", text, {}});
    }
}

TEST(Leaving, A_Reading_May_Be_Zero_But_Not_Blank) {
    Test_Bench bench;
    const Events refused{"focus Form1.Text107(20)", blank_box};
    for (const std::string_view text : {"", "-", ".", "-.,"}) {
        Expect_Leave(bench, {"Form1.Text107(20)", text, refused});
    }
    for (const std::string_view text : {"0", "0.0", " ", "abc"}) {
        Expect_Leave(bench, {"Form1.Text107(20)", text, {}});
    }
    Expect_Leave(bench, {"Form1.Text108(8)", "0", {}}); // corrects to no pressure: blank is refused
    Expect_Leave(bench, {"Form1.Text108(8)", "", {"focus Form1.Text108(8)", blank_box}});
    Expect_Leave(bench, {"Form1.Text108(7)", "0", {"focus Form1.Text108(7)", zero_box}});
    Expect_Leave(bench, {"Form1.Text102(0)", "", {}});
    Expect_Leave(bench, {"Form1.Text38", "", {}});
}

TEST(Leaving, The_Limits_Of_The_Engine_Show_Their_Box_Before_The_Focus) {
    Test_Bench bench;
    const Events mach{"plain box: Mach # Can Not be Greater Than 1", "focus Main.Text101(3)"};
    const Events ratio{"plain box: CR Can Not be Greater Than 25", "focus Main.Text101(8)"};
    Expect_Leave(bench, {"Main.Text101(3)", "1", {}});
    Expect_Leave(bench, {"Main.Text101(3)", "1.0001", mach});
    Expect_Leave(bench, {"Main.Text101(3)", "none", {}});
    Expect_Leave(bench, {"Main.Text101(8)", "25", {}});
    Expect_Leave(bench, {"Main.Text101(8)", "25.1", ratio});
    Expect_Leave(bench, {"Main.Text101(8)", "2,6E1", {}}); // no number in dot mode
    // A refused blank ends the checks of that leave.
    Expect_Leave(bench, {"Main.Text101(8)", "", {"focus Main.Text101(8)", zero_box}});
}

TEST(Leaving, Valve_Counts_Are_Compared_As_Texts) {
    Test_Bench bench;
    const Events intake{"plain box: Number of Intake Valves Must be 1 to 4",
                        "focus Form1.Text106(6)"};
    const Events exhaust{"plain box: Number of Exhaust Valves Must be 1 to 4",
                         "focus Form1.Text108(6)"};
    for (const std::string_view text : {"0", "5", "45", "4 ", "9"}) {
        Expect_Leave(bench, {"Form1.Text106(6)", text, intake});
        Expect_Leave(bench, {"Form1.Text108(6)", text, exhaust});
    }
    for (const std::string_view text : {"1", "2", "4", "10", "12", "3.9"}) {
        Expect_Leave(bench, {"Form1.Text106(6)", text, {}});
    }
    Expect_Leave(bench, {"Form1.Text106(6)", "", {"focus Form1.Text106(6)", blank_box}});
}

TEST(Leaving, A_Lift_Goes_To_Its_Second_Column_As_Typed) {
    Test_Bench bench;
    bench.Type("Form2.Text101(20)", "0210.50");
    EXPECT_EQ(bench.Get("Form2.Text108(20)"), "200") << "not on each key";
    EXPECT_EQ(bench.Leave("Form2.Text101(20)"), Events{});
    EXPECT_EQ(bench.Get("Form2.Text108(20)"), "0210.50");
    EXPECT_EQ(bench.Get("Form1.Text108(20)"), "200") << "the other sheets have their own";
    Expect_Leave(bench, {"Form2.Text101(20)", "", {"focus Form2.Text101(20)", blank_box}});
    EXPECT_EQ(bench.Get("Form2.Text108(20)"), "0210.50") << "a refused blank is not copied";
}

TEST(Leaving, Comma_Mode_Knows_Its_Zero) {
    Test_Bench bench({.point = ","});
    Expect_Leave(bench, {"Main.Text104(3)", "0,0", {"focus Main.Text104(3)", zero_box}});
    Expect_Leave(bench, {"Main.Text101(3)",
                         "1,01",
                         {"plain box: Mach # Can Not be Greater Than 1", "focus Main.Text101(3)"}});
}

} // namespace

} // namespace kestrum
