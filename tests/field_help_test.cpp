#include "presentation/dimension_drawing.h"
#include "presentation/field_help.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <set>

namespace kestrum {

namespace {

/// A document that is made from a table of the program: with KESTRUM_REWRITE set it is written
/// anew.
void Expect_Document(const std::string& name, const std::string& content) {
    const std::string path = std::string(KESTRUM_DOCS) + "/" + name;
    if (std::getenv("KESTRUM_REWRITE") != nullptr) { // NOLINT(concurrency-mt-unsafe)
        std::ofstream(path, std::ios::binary) << content;
    }
    std::ifstream file(path, std::ios::binary);
    const std::string there{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(there == content) << path
                                  << " is not what the program says: run with KESTRUM_REWRITE";
}

TEST(Field_Help, Is_There_For_Every_Input_And_Result_And_For_Nothing_Else) {
    Test_Bench bench;
    std::set<const Field_Help*> used;
    for (Screen* const screen : {static_cast<Screen*>(&bench.session.Main()),
                                 static_cast<Screen*>(&bench.session.Sheet(1)),
                                 static_cast<Screen*>(&bench.session.Form50())}) {
        for (const Control& control : screen->Controls()) {
            const Cell_Use use = control.Entry().use;
            const bool is_figure = use == Cell_Use::Input || use == Cell_Use::Result;
            const Field_Help* const help = Help_Of(control);
            EXPECT_EQ(help != nullptr, is_figure && control.Is_Text_Box()) << control.Address();
            used.insert(help);
        }
    }
    EXPECT_EQ(used.size() - 1, All_Field_Help().size()) << "a line is of no cell";
}

TEST(Field_Help, Tells_The_Unit_Of_The_Present_Mode) {
    Test_Bench bench;
    const auto ends = [&](std::string_view address, bool metric) {
        const std::string words = Help_Words(bench.At(address), metric);
        const std::size_t at = words.rfind(" [");
        return at == std::string::npos ? "" : words.substr(at + 1);
    };
    EXPECT_EQ(ends("Form1.Text102(3)", false), "[in]");
    EXPECT_EQ(ends("Form1.Text102(3)", true), "[mm]");
    EXPECT_EQ(ends("Form1.Text101(20)", false), "[1/1000 in]");
    EXPECT_EQ(ends("Form1.Text107(30)", true), "[m3/min]");
    EXPECT_EQ(ends("Form1.Text111(20)", false), "");
    EXPECT_EQ(ends("Main.Text107(8)", false), "[lb-ft/cu in]");
    EXPECT_EQ(ends("Main.Text102(8)", true), "[m/min]");
}

TEST(Field_Help, Is_What_The_Manual_Lists) {
    Expect_Document("fields.md", Help_Chapter());
    Expect_Document("pictures/dimensions.svg", Figure_Svg(Dimension_Drawing({})));
}

TEST(Dimension_Drawing, Keeps_Its_Letters_Inside_And_Its_Colours_Apart) {
    const Dimension_Colours night{.ground = 1, .ink = 2, .metal = 3, .mark = 4};
    const Figure figure = Dimension_Drawing(night);
    int texts = 0;
    for (const Figure::Step& step : figure.Steps()) {
        if (const auto* const text = std::get_if<Figure_Text>(&step)) {
            const double width = Figure_Text_Width(text->text, text->size, text->bold);
            const double left = text->anchor == Text_Anchor::Left     ? text->x
                                : text->anchor == Text_Anchor::Centre ? text->x - width / 2
                                                                      : text->x - width;
            EXPECT_GE(left, 0) << text->text;
            EXPECT_LE(left + width, figure.width) << text->text;
            EXPECT_TRUE(text->colour == night.ink || text->colour == night.mark) << text->text;
            ++texts;
        }
    }
    EXPECT_GT(texts, 12);
}

} // namespace

} // namespace kestrum
