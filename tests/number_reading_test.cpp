#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <charconv>
#include <random>
#include <string>

namespace kestrum {

namespace {

const Numeric_Text dot_mode{};
const Numeric_Text comma_mode{.comma_mode = 1};

struct Number_Case {
    std::string_view text;
    double value;
};

TEST(Number_Reading, Takes_What_A_Field_May_Hold) {
    constexpr Number_Case cases[] = {
        {"0", 0},        {"35.8", 35.8},   {"  12.5  ", 12.5},     {".5", 0.5},
        {"5.", 5},       {"007", 7},       {"1234567.", 1234567},  {"-3", -3},
        {"3-", -3},      {"+3", 3},        {"3.5+", 3.5},          {"-.5", -0.5},
        {"1e3", 1000},   {"1E+3", 1000},   {"1d3", 1000},          {"25D-1", 2.5},
        {"1E+15", 1e15}, {"-1e2", -100},

        {"1.e1", 10},    {"1e-400", 0},    {"0e9999", 0},          {"1e00000000002", 100},
        {"0.000", 0},    {"9e307", 9e307}, {"4.9e-324", 4.9e-324},
    };
    for (const Number_Case& c : cases) {
        EXPECT_EQ(dot_mode.Read(c.text), c.value) << c.text;
    }
}

TEST(Number_Reading, Gives_The_Nearest_Double_Of_Every_Plain_Text) {
    std::minstd_rand chance; // NOLINT(*-msc*) the same texts in every run
    for (int round = 0; round < 200000; ++round) {
        std::string text = chance() % 4 == 0 ? "-" : "";
        const std::size_t digits = 1 + chance() % 18; // beyond what one division can do
        for (std::size_t digit = 0; digit < digits; ++digit) {
            text += static_cast<char>('0' + chance() % 10);
        }
        const std::size_t sign = text.front() == '-' ? 1 : 0;
        text.insert(sign + chance() % (digits + 1), ".");
        double expected = 0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        ASSERT_EQ(dot_mode.Read(text).Value(), expected) << text;
    }
}

TEST(Number_Reading, Comma_Mode_Reads_Commas) {
    constexpr Number_Case cases[] = {{"1,5", 1.5},     {",5", 0.5},     {"5,", 5},
                                     {"-0,25", -0.25}, {"1,5e3", 1500}, {"12", 12}};
    for (const Number_Case& c : cases) {
        EXPECT_EQ(comma_mode.Read(c.text), c.value) << c.text;
    }
}

TEST(Number_Reading, Refuses_What_Is_No_Number) {
    for (const std::string_view text :
         {"",      " ",   "-",   ".",  "-.",   "1.2.3", "1,5",   "1,234.5", "1 2", "abc",
          "12a",   "1e",  "1e+", "e5", "--1",  "-1-",   "1e5.5", "0x10",    "inf", "nan",
          "1e5 e", "1_0", "\t1", "½",  "1.5.", "+",     "1e+-5", "'1",      "- 3"}) {
        EXPECT_EQ(Error_Of([&] { (void)dot_mode.Read(text); }), 13) << text;
    }
    // The other mark is no digit grouping: a visible failure beats a silent tenfold error.
    EXPECT_EQ(Error_Of([] { (void)comma_mode.Read("1.5"); }), 13);
    EXPECT_EQ(Error_Of([] { (void)comma_mode.Read("1.234,5"); }), 13);
}

TEST(Number_Reading, Overflows_Beyond_Double) {
    const std::string many_nines(400, '9');
    for (const std::string_view text :
         {std::string_view(many_nines), std::string_view("1e309"), std::string_view("-1e309"),
          std::string_view("2E308"), std::string_view("1e99999999999999999999")}) {
        EXPECT_EQ(Error_Of([&] { (void)dot_mode.Read(text); }), 6) << text;
    }
}

TEST(Number_Reading, Integers_Round_Half_To_Even_Within_16_Bits) {
    struct Case {
        std::string_view text;
        int value;
    };

    constexpr Case cases[] = {{"1.5", 2},   {"2.5", 2},         {"0.5", 0},           {"-0.5", 0},
                              {"-1.5", -2}, {"32767.4", 32767}, {"-32768.5", -32768}, {"4 ", 4}};
    for (const Case& c : cases) {
        EXPECT_EQ(dot_mode.Read_Integer(c.text), c.value) << c.text;
    }
    EXPECT_EQ(Error_Of([] { (void)dot_mode.Read_Integer("32767.5"); }), 6);
    EXPECT_EQ(Error_Of([] { (void)dot_mode.Read_Integer("-32769"); }), 6);
    EXPECT_EQ(Error_Of([] { (void)dot_mode.Read_Integer("1e300"); }), 6);
    EXPECT_EQ(Error_Of([] { (void)dot_mode.Read_Integer(""); }), 13);
}

TEST(Number_Reading, Either_Mark_Becomes_The_One_Of_The_Mode) {
    Numeric_Text numbers;
    EXPECT_EQ(numbers.Text_To_Number_String("1,50"), "1.5");
    EXPECT_EQ(numbers.locale_point, "1.50"); // the separator of the start is gone; nothing may
                                             // take it from there any more
    EXPECT_EQ(numbers.Text_To_Number_String(" 5.10"), "5.1");
    EXPECT_EQ(numbers.Text_To_Number_String("1e15"), "1E+15");
    EXPECT_EQ(Error_Of([&] { (void)numbers.Text_To_Number_String(""); }), 13);
    EXPECT_EQ(Error_Of([&] { (void)numbers.Text_To_Number_String("1,234.5"); }), 13);
    numbers.comma_mode = 1;
    EXPECT_EQ(numbers.Text_To_Number_String("1.50"), "1,5");
    EXPECT_EQ(numbers.Text_To_Number_String("0,25"), "0,25");
    EXPECT_EQ(numbers.Read_Either_Mark("12.25").Value(), 12.25);
    // Sixteen digits and more are rounded to the fifteen that the text would show.
    EXPECT_EQ(numbers.Read_Either_Mark("0.12345678901234567").Value(), 0.123456789012346);
    EXPECT_EQ(numbers.Read_Integer_Either_Mark("2.5"), 2);
}

TEST(Real, Fails_Where_A_Pocket_Calculator_Would) {
    struct Case {
        const char* name;
        Real (*operation)();
        int number;
    };

    constexpr Case cases[] = {
        {"x / 0", [] { return Real(1) / 0; }, 11},
        {"-x / 0", [] { return Real(-1) / 0; }, 11},
        {"0 / 0", [] { return Real(0) / 0; }, 6},
        {"product", [] { return Real(1e200) * 1e200; }, 6},
        {"sum", [] { return Real(1.7e308) + 1.7e308; }, 6},
        {"difference", [] { return Real(-1.7e308) - 1.7e308; }, 6},
        {"quotient", [] { return Real(1e200) / 1e-200; }, 6},
        {"power", [] { return Power(1e200, 2); }, 6},
        {"root of a negative", [] { return Power(-4, 0.5); }, 5},
        {"power of 0 below 0", [] { return Power(0, -1); }, 11},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Error_Of([&] { c.operation(); }), c.number) << c.name;
    }
    EXPECT_EQ(Power(0, 0.44), 0);
    EXPECT_EQ(Power(-2, 2), 4);
    EXPECT_EQ(Power(16, 0.5), 4);
}

TEST(Run_Time_Error, Is_Told_In_The_Words_Of_Its_Number) {
    struct Case {
        int number;
        std::string_view description;
    };

    constexpr Case cases[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {53, "File not found"},
        {62, "Input past end of file"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {380, "Invalid property value"},
        {481, "Invalid picture"},
        {482, "Printer error"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Run_Time_Error(c.number).Description(), c.description);
    }
    try {
        Fail_No_Element(31);
    } catch (const Run_Time_Error& failure) {
        EXPECT_EQ(failure.Number(), 340);
        EXPECT_EQ(failure.Description(), "Control array element '31' doesn't exist");
    }
}

} // namespace

} // namespace kestrum
