#include "base/numeric_text.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

const Numeric_Text flush_left{};
constexpr Alignment right = Alignment::Right;

struct Picture_Case {
    const char* name;
    Format format;
    double value;
    std::string_view text;
    std::string_view flush_right;
};

// The expected texts are rounded by hand: take 15 significant digits, then half away from zero.
constexpr Picture_Case picture_cases[] = {
    // 4.125 x 25.4 is the double just below 104.775; rounding that double gives 104.77.
    {"a bore in mm", &Numeric_Text::Fmt_Two_Place, 104.77499999999999, "104.78", "104.78"},
    {"a printf that rounds to even", &Numeric_Text::Fmt_One_Place, 36.25, "36.3", "36.3"},
    {"half of a negative number", &Numeric_Text::Fmt_One_Place, -36.25, "-36.3", "-36.3"},
    {"a half that binary stores too low", &Numeric_Text::Fmt_Two_Place, 1.005, "1.01", "1.01"},
    {"half of a whole number", &Numeric_Text::Fmt_Whole, 2.5, "3", "3"},
    {"just below the half", &Numeric_Text::Fmt_Whole, 2.49999999999999, "2", "2"},
    {"below the half by the 16th digit", &Numeric_Text::Fmt_Whole, 2.499999999999999, "3", "3"},
    {"rounded up to the first digit", &Numeric_Text::Fmt_Whole, 0.5, "1", "1"},
    {"a carry through all digits", &Numeric_Text::Fmt_Two_Place, 9.995, "10.0", "10.00"},
    {"a carry in the decimals", &Numeric_Text::Fmt_Three_Place, 0.5996, "0.6", "0.600"},
    {"zero keeps one decimal", &Numeric_Text::Fmt_Two_Place, 0, "0.0", "0.00"},
    {"zero", &Numeric_Text::Fmt_Three_Place, 0, "0.0", "0.000"},
    {"zero without a decimal", &Numeric_Text::Fmt_Whole, 0, "0", "0"},
    {"a zero has no minus", &Numeric_Text::Fmt_One_Place, -0.04, "0.0", "0.0"},
    {"nor has the double -0", &Numeric_Text::Fmt_Whole, -0.0, "0", "0"},
    {"a minus that stays", &Numeric_Text::Fmt_Whole, -0.5, "-1", "-1"},
    {"trailing zeros", &Numeric_Text::Fmt_Two_Place, 0.5, "0.5", "0.50"},
    {"a whole number", &Numeric_Text::Fmt_Four_Place, 12, "12.0", "12.0000"},
    {"four places", &Numeric_Text::Fmt_Four_Place, 1.5 / 2, "0.75", "0.7500"},
    {"a fixed single place", &Numeric_Text::Fmt_One_Place, 505, "505.0", "505.0"},
    {"zeros inside stay", &Numeric_Text::Fmt_Up_To_Five, 7.00860000001, "7.0086", "7.0086"},
    {"five places never fixed", &Numeric_Text::Fmt_Up_To_Five, 7, "7.0", "7.0"},
    {"six places", &Numeric_Text::Fmt_Up_To_Six, 0.0343364, "0.034336", "0.034336"},
    {"half of the last place", &Numeric_Text::Fmt_Up_To_Six, 5e-7, "0.000001", "0.000001"},
    {"below the last place", &Numeric_Text::Fmt_Up_To_Six, 4.9e-7, "0.0", "0.0"},
    {"far below", &Numeric_Text::Fmt_Up_To_Six, 1e-300, "0.0", "0.0"},
    {"beyond 15 digits", &Numeric_Text::Fmt_Whole, 123456789012345678.0, "123456789012346000",
     "123456789012346000"},
    {"no exponent in a picture", &Numeric_Text::Fmt_One_Place, 1e20, "100000000000000000000.0",
     "100000000000000000000.0"},
    {"no group", &Numeric_Text::Fmt_Thousands, 999.4, "999", "999"},
    {"a group", &Numeric_Text::Fmt_Thousands, 999.5, "1,000", "1,000"},
    {"two groups", &Numeric_Text::Fmt_Thousands, 1234567, "1,234,567", "1,234,567"},
    {"no group behind a sign", &Numeric_Text::Fmt_Thousands, -123, "-123", "-123"},
    {"a group and a sign", &Numeric_Text::Fmt_Thousands, -1234, "-1,234", "-1,234"},
    {"eight digits fill the width", &Numeric_Text::Fmt_Eight_Wide, 12345678.5, "12345678",
     "12345678"},
    {"the point is the eighth", &Numeric_Text::Fmt_Eight_Wide, 1234567.8, "1234567.", "1234567."},
    {"a cut, not a rounding", &Numeric_Text::Fmt_Eight_Wide, 1234.123956, "1234.123", "1234.123"},
    {"a whole part beyond the width", &Numeric_Text::Fmt_Eight_Wide, 1234567890.5, "1234567890",
     "1234567890"},
    {"a sign takes room", &Numeric_Text::Fmt_Eight_Wide, -123.456789, "-123.456", "-123.456"},
    {"short enough", &Numeric_Text::Fmt_Eight_Wide, 0.5, "0.5", "0.5"},
};

TEST(Number_Format, Rounds_What_The_User_Sees) {
    for (const Picture_Case& c : picture_cases) {
        EXPECT_EQ((flush_left.*c.format)(c.value), c.text) << c.name;
    }
}

TEST(Number_Format, Flush_Right_Fixes_The_Decimals_Of_Two_To_Four_Places) {
    const Numeric_Text numbers{.align_mode = right};
    for (const Picture_Case& c : picture_cases) {
        EXPECT_EQ((numbers.*c.format)(c.value), c.flush_right) << c.name;
    }
    const Numeric_Text centred{.align_mode = Alignment::Center};
    EXPECT_EQ(centred.Fmt_Two_Place(0.5), "0.5");
}

TEST(Number_Format, Comma_Mode_Shows_Commas_And_Groups_By_Dots) {
    const Numeric_Text numbers{.comma_mode = 1};
    EXPECT_EQ(numbers.Fmt_Two_Place(104.77499999999999), "104,78");
    EXPECT_EQ(numbers.Fmt_Thousands(1234), "1.234");
    EXPECT_EQ(numbers.Fmt_Whole(2.5), "3");
    EXPECT_EQ(numbers.Plain(-0.5), "-0,5");
    // The wide format looks for a dot only, so here it cuts the whole part too.
    EXPECT_EQ(numbers.Fmt_Eight_Wide(123456789.5), "12345678");
    EXPECT_EQ(numbers.Fmt_Eight_Wide(1234567.8), "1234567,");
}

TEST(Number_Format, Plain_Text_Keeps_15_Digits) {
    struct Case {
        double value;
        std::string_view text;
    };

    constexpr Case cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.1 + 0.2, "0.3"}, // 0.30000000000000004
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {-2.5, "-2.5"},
        {100, "100"},
        {999999999999999, "999999999999999"},
        {1e15, "1E+15"},
        {1.5e15, "1.5E+15"},
        {123456789012345678.0, "1.23456789012346E+17"},
        {1e100, "1E+100"},
        {1e-15, "0.000000000000001"}, // 15 decimals
        {1.5e-15, "1.5E-15"},         // would need 16
        {1.0 / 30, "3.33333333333333E-02"},
        {1e-16, "1E-16"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(flush_left.Plain(c.value), c.text);
    }
}

} // namespace

} // namespace kestrum
