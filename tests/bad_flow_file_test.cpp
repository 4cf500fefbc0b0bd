#include "files/flow_data_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum {

namespace {

const std::string stopped = "exclamation box: Error Loading Flow Data File --- If you have Not "
                            "edited the file Please Contact us!";

std::string Not_Handled(std::string_view line) {
    return "plain box [OK, Cancel] titled TARVEX - Error Message: Record not Handled -->" +
           std::string(line);
}

std::string Invalid(std::string_view number, std::string_view line) {
    return "plain box [OK, Cancel]: Invalid Input Record # - " + std::string(number) +
           "   Data --> " + std::string(line);
}

/// What happens when the bytes are loaded into the first sheet.
Events Read(Test_Bench& bench, std::string_view bytes) {
    Read_Flow_Records(bench.session, bench.session.Sheet(1), bytes);
    return bench.Take_Events();
}

TEST(Bad_Flow_File, Lines_Of_No_Field_Ask_Whether_To_Go_On) {
    Test_Bench bench;
    for (const std::string_view line : {"Text108_16 = 5",
                                        "Text108_30 = 5",
                                        "Text102_2 = 5",
                                        "Text104_2 = 5",
                                        "Text104_10 = 5",
                                        "Text105_0 = 5",
                                        "Text110_7 = 5",
                                        "Text112_2 = 5",
                                        "Text202_3 = 5",
                                        "Text101_15 = 5",
                                        "Text101_-1 = 5",
                                        "Text106_5 = 5",
                                        "Text106_15 = 5",
                                        "Text207_4 = 5",
                                        "Text999_16 = 5",
                                        "Text101_20=5",
                                        "Text39_1 = x",
                                        "Text38 = x",
                                        "Comments=x",
                                        "E7TE",
                                        "",
                                        "=",
                                        " ",
                                        " Text104_6 = 1",
                                        "Größe = 5"}) {
        bench.Set("Form1.Text102(0)", "before");
        const std::string bytes = std::string(line) + "\r\nText102_0 = Behind\r\n";
        EXPECT_EQ(Read(bench, bytes), Events{Not_Handled(line)}) << line;
        EXPECT_EQ(bench.Get("Form1.Text102(0)"), "Behind") << line;
        bench.Set("Form1.Text102(0)", "before");
        bench.Set("Form1.Text109(17)", "not calculated");
        bench.platform.Answer(Box_Answer::Cancel);
        EXPECT_EQ(Read(bench, bytes), (Events{Not_Handled(line), stopped})) << line;
        Expect_Texts(bench,
                     {{"Form1.Text102(0)", "before"}, {"Form1.Text109(17)", "not calculated"}});
    }
}

TEST(Bad_Flow_File, A_Line_That_Fails_Ends_The_Reading) {
    struct Case {
        const char* name;
        std::string_view line;
    };

    const Case cases[] = {
        {"row beyond the sheet", "Text101_31 = 5"},
        {"row of a caption column", "Text106_-1 = 5"},
        {"far row", "Text210_32767 = 5"},
        {"row beyond 16 bits", "Text101_32768 = 5"},
        {"row that is no number", "Text101_x = 5"},
        {"row with a comma", "Text101_16,0 = 5"},
        {"no row", "Text101_ = 5"},
        {"no blank before the sign", "Text102_8=5.37"},
        {"no sign", "Text102_8"},
        {"sign in the key", "Text101_="},
        {"unknown letters in the row", "Text101_\xC3\xA4 = 5"},
        {"NUL in the row", std::string_view("Text101_1\0006 = 5", 15)},
    };
    for (const Case& c : cases) {
        Test_Bench bench;
        bench.Set("Form1.Text109(17)", "not calculated");
        const std::string bytes =
            "Text102_0 = Before\r\n" + std::string(c.line) + "\r\nText102_0 = Behind\r\n";
        // Neither answer changes what follows.
        bench.platform.Answer(c.line.size() % 2 == 0 ? Box_Answer::Ok : Box_Answer::Cancel);
        EXPECT_EQ(Read(bench, bytes), (Events{Invalid("2", c.line), stopped})) << c.name;
        Expect_Texts(bench, {{"Form1.Text102(0)", "Before"},
                             {"Form1.Text106(28)", "0"},
                             {"Form1.Text109(17)", "not calculated"}});
    }
}

TEST(Bad_Flow_File, A_Valve_Count_That_Is_None_Fails_Behind_The_Last_Line) {
    Test_Bench bench;
    EXPECT_EQ(Read(bench, "Text106_6 = two\r\nText102_0 = Last"),
              (Events{Invalid("2", "Text102_0 = Last"), stopped}));
    EXPECT_EQ(Read(bench, "Text106_6 = \n"), (Events{Invalid("1", "Text106_6 = "), stopped}));
    // What the calculation itself cannot use ends in its own box.
    const Events events = Read(bench, "Text106_6 = 1\nText102_3 = two\n");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_TRUE(events[0].starts_with("stop box: Error Number 13 -- Type mismatch"));
}

TEST(Bad_Flow_File, Long_And_Binary_Content_Is_Told_Of_Too) {
    Test_Bench bench;
    const std::string long_line(10 << 20, 'x');
    EXPECT_EQ(Read(bench, long_line), Events{Not_Handled(long_line)});
    EXPECT_EQ(Read(bench, "Text102_0 = " + long_line + "\r\nText104_6 = 1.3"), Events{});
    EXPECT_EQ(bench.Get("Form1.Text102(0)"), long_line);
    std::string binary;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != 26) {
            binary += static_cast<char>(byte);
        }
    }
    const Events events = Read(bench, binary);
    ASSERT_EQ(events.size(), 2U); // byte 10 is a line end
    EXPECT_EQ(events[0], Not_Handled(binary.substr(0, 10)));
    EXPECT_TRUE(events[1].ends_with("ûüýþÿ"));
    EXPECT_EQ(Read(bench, std::string(3, '\0') + "\n"),
              Events{Not_Handled(std::string_view("\0\0\0", 3))});
}

TEST(Bad_Flow_File, The_Count_Of_Lines_Stays_At_16_Bits) {
    Test_Bench bench;
    std::string comment = "a";
    for (int line = 2; line <= 40000; ++line) {
        comment += "\r\nb";
    }
    bench.Set("Form1.Text38", comment);
    const std::string path = bench.folder.File("long.dat");
    bench.platform.Choose(path);
    bench.Click("Form1.Save_Data");
    bench.Set("Form1.Text38", "");
    bench.platform.Choose(path);
    EXPECT_EQ(
        bench.Click("Form1.Load_Data"),
        (Events{"chooser to open", "plain box: 32,767 Records Read", "focus Form1.Text101(16)"}));
    EXPECT_EQ(bench.Get("Form1.Text38"), " " + comment);
    const std::string bytes = bench.folder.Read("long.dat") + "Text102_x = only a comment\r\n";
    EXPECT_EQ(Read(bench, bytes), Events{});
    // A failure that far behind is told with the highest number.
    EXPECT_EQ(Read(bench, std::string(40000, '\n').insert(0, "Comments = \n")), Events{});
    EXPECT_EQ(bench.session.file.records_read, 32767);
}

/// What a file must end in that was cut off inside its last line.
std::string Expected_Event(std::string_view line) {
    if (line.empty() || line.find('=') != std::string_view::npos || line.starts_with("Second")) {
        return "";
    }
    const bool has_key = line.size() >= 8 && line.starts_with("Text");
    return has_key ? stopped : Not_Handled(line);
}

TEST(Bad_Flow_File, A_File_Cut_Off_At_Any_Byte_Gets_Its_Box) {
    Test_Bench bench;
    // Comment and key are in the same way at the end of each file: one letter of two bytes.
    bench.Set("Form1.Text38", "Öl");
    bench.Set("Form1.Text102(0)", "Öl");
    const std::string whole = Flow_File_Text(bench.session, bench.session.Sheet(1));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::string_view cut = std::string_view(whole).substr(0, size);
        const std::size_t behind_end = cut.find_last_of('\n') + 1;
        const std::string_view line = cut.substr(behind_end);
        const std::string expected = Expected_Event(line);
        const Events events = Read(bench, cut);
        const bool count_is_cut =
            line.starts_with("Text106_6 =") || line.starts_with("Text108_6 =");
        if (count_is_cut && line.size() < 13) {
            EXPECT_EQ(events.back(), stopped) << line;
        } else if (!expected.empty()) {
            ASSERT_FALSE(events.empty()) << line;
            EXPECT_EQ(events.back(), expected) << line;
        } else {
            // A blank dimension may stop the calculation; the reading itself asks nothing.
            EXPECT_TRUE(std::ranges::none_of(events, [](const std::string& event) {
                return event == stopped || event.starts_with("plain box [OK");
            })) << line;
        }
    }
}

} // namespace

} // namespace kestrum
