#include "files/gui_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

constexpr std::string_view failure =
    "exclamation box: Error Reading Parameter File --- If you have Not edited it, email US";

class GUI_File : public ::testing::Test {
protected:
    Events Read(std::string_view bytes) {
        bench_.platform.Choose(bench_.folder.Write("a.gui", bytes));
        Events events = bench_.Click("Main.Read_GUI");
        events.erase(events.begin());
        return events;
    }

    Font Font_Of(std::string_view address) { return bench_.At(address).Present_Look().font; }

    Alignment Alignment_Of(std::string_view address) {
        return bench_.At(address).Present_Look().alignment;
    }

    Test_Bench bench_;
};

TEST_F(GUI_File, Holds_The_Look_Of_Every_Group) {
    bench_.platform.font = Font{.name = "Ünï Mono", .size = 9.5, .bold = true};
    bench_.Click("Main.EntryFont");
    bench_.platform.font = Font{.name = "Times", .size = 11, .italic = true};
    bench_.Click("Main.AllFont_Flow");
    bench_.Click("Main.AligCenter");
    bench_.platform.colour = 0xFF0000;
    bench_.Click("Main.FontColor");
    const std::string path = bench_.folder.File("b.gui");
    bench_.platform.Choose(path);
    EXPECT_EQ(bench_.Click("Main.Write_GUI"),
              (Events{"chooser to save", "plain box: 19 Records Written"}));
    const std::string written = bench_.folder.Read("b.gui");
    EXPECT_EQ(written, "; Please Do not Edit or Change the Order of any of these Lines\r\n"
                       "All Box Main Font Name = Arial\r\n"
                       "All Box Main Font Size = 8\r\n"
                       "All Box Main Font Bold = 0\r\n"
                       "All Box Main Font Italic = 0\r\n"
                       "Entry Box Main Font Name = Ünï Mono\r\n"
                       "Entry Box Main Font Size = 10\r\n"
                       "Entry Box Main Font Bold = -1\r\n"
                       "Entry Box Main Font Italic = 0\r\n"
                       "All Box Flow Font Name = Times\r\n"
                       "All Box Flow Font Size = 11\r\n"
                       "All Box Flow Font Bold = 0\r\n"
                       "All Box Flow Font Italic = -1\r\n"
                       "Entry Box Flow Font Name = Times\r\n"
                       "Entry Box Flow Font Size = 11\r\n"
                       "Entry Box Flow Font Bold = 0\r\n"
                       "Entry Box Flow Font Italic = -1\r\n"
                       "Box Alignment = 2\r\n"
                       "Graph Font Color = 16711680\r\n");
    Test_Bench other({.command_line = "/fs"}); // the letters of its screens are larger
    other.platform.Choose(path);
    EXPECT_EQ(other.Click("Main.Read_GUI"),
              (Events{"chooser to open", "plain box: 19 Records Read"}));
    const Font& entry = other.At("Main.Text104(3)").Present_Look().font;
    EXPECT_EQ(entry.name, "Ünï Mono");
    EXPECT_DOUBLE_EQ(entry.size, 10 * 1776.0 / 880 * 1.1);
    EXPECT_TRUE(other.At("Form4.Text101(7)").Present_Look().font.italic);
    EXPECT_EQ(other.At("Form60.Picture1").Present_Look().text_colour, 0xFF0000);
    EXPECT_EQ(GUI_Text(other.session), written) << "each saving gives the same sizes";
}

TEST_F(GUI_File, A_Group_Is_Taken_With_Its_Last_Line) {
    bench_.Click("Main.AllFont"); // a cancel, which must not hold up the file
    const std::string three = "all box main FONT name = Mono\nAll Box Main Font Size =  10\n"
                              "All Box Main Font Bold = TRUE\n";
    EXPECT_EQ(Read(three), Events{"plain box: 3 Records Read"});
    EXPECT_EQ(Font_Of("Main.Text101(7)"), Font{});
    EXPECT_EQ(Read(three + "All Box Main Font Italic = 0"), Events{"plain box: 4 Records Read"});
    EXPECT_EQ(Font_Of("Main.Text101(7)"), (Font{.name = "Mono", .size = 10, .bold = true}));
    EXPECT_EQ(Font_Of("Form1.Text101(7)"), Font{});
}

TEST_F(GUI_File, Is_Read_With_Either_Decimal_Mark) {
    for (const int comma_mode : {0, 1}) {
        bench_.session.numbers.comma_mode = comma_mode;
        for (const char* const size : {"8.25", "8,25"}) {
            EXPECT_EQ(Read(std::string("All Box Main Font Name = Mono\nAll Box Main Font Size = ") +
                           size + "\nAll Box Main Font Italic = 0"),
                      Events{"plain box: 3 Records Read"});
            EXPECT_EQ(Font_Of("Main.Text101(7)"), (Font{.name = "Mono", .size = 8.25}));
            Read("All Box Main Font Size = 9\nAll Box Main Font Italic = 0");
        }
    }
}

TEST_F(GUI_File, Flush_Right_Calculates_All_Sheets) {
    bench_.Close("Form3");
    const auto figures = [this] {
        std::string texts;
        for (const Control& control : bench_.session.Sheet(1).Controls()) {
            texts += control.Text() + " ";
        }
        return texts;
    };
    const std::string before = figures();
    EXPECT_EQ(Read("Box Alignment = 1"), Events{"plain box: 1 Records Read"});
    EXPECT_EQ(Alignment_Of("Main.Text101(7)"), Alignment::Right);
    EXPECT_EQ(Alignment_Of("Form3.Text104(6)"), Alignment::Right);
    EXPECT_EQ(Alignment_Of("Form50.Text71"), Alignment::Left);
    EXPECT_NE(figures(), before) << "fixed decimals";
}

TEST_F(GUI_File, What_Is_Broken_Ends_The_Reading_And_Is_Told) {
    for (const char* const line :
         {"Box Alignment = 3", "Box Alignment = x", "Graph Font Color = 1E10",
          "All Box Main Font Italic = 0", // no size yet
          "All Box Flow Font Bold = yes",
          "Entry Box Main Font Size = 0\nEntry Box Main Font "
          "Name = A\nEntry Box Main Font Italic = 0"}) {
        const Events events = Read(std::string(line) + "\nGraph Font Color =255");
        ASSERT_EQ(events.size(), 2U) << line;
        EXPECT_EQ(events.front(), failure) << line;
        EXPECT_EQ(bench_.At("Form60.Picture1").Present_Look().text_colour, 0) << line;
        EXPECT_EQ(Font_Of("Main.Text101(7)"), Font{}) << line;
        EXPECT_EQ(bench_.session.numbers.align_mode, Alignment::Left) << line;
    }
    const std::string question =
        "plain box [OK, Cancel]: Invalid Input Record # - 1   Data --> Box";
    EXPECT_EQ(Read("Box\nGraph Font Color =255"), (Events{question, "plain box: 2 Records Read"}));
    EXPECT_EQ(bench_.At("Form60.Picture1").Present_Look().text_colour, 255);
    bench_.platform.Answer(Box_Answer::Cancel);
    EXPECT_EQ(Read("Box\nGraph Font Color =1"),
              (Events{question, std::string(failure), "plain box: 1 Records Read"}));
    EXPECT_EQ(bench_.At("Form60.Picture1").Present_Look().text_colour, 255);
    for (const char* const entry : {"Main.Read_GUI", "Main.Write_GUI"}) {
        bench_.platform.Choose(std::nullopt);
        EXPECT_EQ(bench_.Click(entry).back(), entry == std::string("Main.Read_GUI")
                                                  ? "plain box: Parameter File has Not been Read"
                                                  : "plain box: GUI File has NOT been Saved");
    }
}

} // namespace

} // namespace kestrum
