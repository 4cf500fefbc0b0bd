#include "base/text.h"
#include "cli/field_editor.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

TEST(Text, Positions_Count_Characters_From_1) {
    EXPECT_EQ(Length("Öl 5 €"), 6U);
    EXPECT_EQ(Middle("Öl=5", 4), "5");
    EXPECT_EQ(Middle("Öl=5", 1), "Öl=5");
    EXPECT_EQ(Middle("Öl=5", 5), "");
    EXPECT_EQ(Middle("Öl=5", 99), "");
    EXPECT_EQ(Middle("x€y€z", 2, 3), "€y€");
    EXPECT_EQ(Middle("abc", 3, 9), "c");
    EXPECT_EQ(Middle("abc", 2, 0), "");
    EXPECT_EQ(Error_Of([] { (void)Middle("abc", 1, -1); }), 5);
    EXPECT_EQ(Left("€€x", 2), "€€");
    EXPECT_EQ(Position_Of("Größe=1=2", '='), 6U);
    EXPECT_EQ(Position_Of("no mark", '='), 0U);
}

TEST(Text, A_Lower_Case_Copy_Keeps_Its_Length) {
    // Kelvin sign and dotted I have lower letters of another length.
    EXPECT_EQ(Lower_Copy("Text104_6 ÄK\u0130"), "text104_6 Äk\u0130");
}

TEST(Text, Blanks_Alone_Are_Cut_Off) {
    EXPECT_EQ(Without_Outer_Blanks("  a b "), "a b");
    EXPECT_EQ(Without_Outer_Blanks("   "), "");
    EXPECT_EQ(Without_Outer_Blanks("\ta"), "\ta");
}

TEST(Text, Bytes_That_Are_No_UTF_8_Are_Windows_1252) {
    struct Case {
        const char* name;
        std::string_view bytes;
        std::string_view text;
    };

    constexpr Case cases[] = {
        {"plain", "E7TE", "E7TE"},
        {"UTF-8", "\xC3\x96l \xE2\x82\xAC \xF0\x9F\x94\xA7", "Öl € 🔧"},
        {"mark", "\xEF\xBB\xBFKopf", "Kopf"},
        {"mark alone", "\xEF\xBB\xBF", ""},
        {"Windows-1252", "\xD6l \x80 \x96", "Öl € –"},
        {"mark before Windows-1252", "\xEF\xBB\xBF\xFC", "ü"},
        {"an unassigned place", "\x81", "\u0081"},
        {"cut off", "a\xC3", "aÃ"},
        {"overlong slash", "\xC0\xAF", "À¯"},
        {"overlong in three bytes", "\xE0\x80\xAF", "à€¯"},
        {"overlong in four bytes", "\xF0\x80\x80\xAF", "ð€€¯"},
        {"surrogate", "\xED\xA0\x80", "í\u00A0€"},
        {"beyond Unicode", "\xF4\x90\x80\x80", "ô\u0090€€"},
        {"one bad byte turns the whole text", "\xC3\x96\xFF", "Ã–ÿ"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Decoded(c.bytes), c.text) << c.name;
    }
}

TEST(Text, Characters_Come_Apart_For_The_Keyboard) {
    EXPECT_EQ(Characters_Of("aÖ€🔧"), U"aÖ€🔧");
    EXPECT_EQ(Characters_Of("\r\n"), U"\r\n");
    EXPECT_EQ(Text_Of(U"aÖ€🔧"), "aÖ€🔧");
}

} // namespace

} // namespace kestrum
