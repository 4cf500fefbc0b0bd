#include "files/flow_data_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

const std::string not_loaded = "exclamation box: Flow Data File has Not been Loaded";
const std::string not_saved = "exclamation box: Flow Data File has NOT been Saved";

/// A file of which every record differs from the sample head's and from every other.
std::string Dart_215() {
    return Bytes_Of(KESTRUM_TEST_DATA "/dart_215.dat");
}

Events Load_Sheet(Test_Bench& bench, std::string_view bytes) {
    bench.platform.Choose(bench.folder.Write("test.dat", bytes));
    return bench.Click("Form1.Load_Data");
}

Events Loaded(std::string_view count) {
    return {"chooser to open", "plain box: " + std::string(count) + " Records Read",
            "focus Form1.Text101(16)"};
}

TEST(Flow_Data_File, A_Round_Trip_Changes_No_Byte_But_One) {
    Test_Bench bench;
    const std::string bytes = Dart_215();
    ASSERT_EQ(std::ranges::count(bytes, '\n'), 126);
    EXPECT_EQ(Load_Sheet(bench, bytes),
              Loaded("126")); // 124 records, the comment has two more lines
    Expect_Texts(bench, {{"Form1.Text102(0)", "Dart 215 CNC"},
                         {"Form1.Text108(19)", "120"},
                         {"Form1.Text107(17)", "21.05"},
                         {"Form1.Text211(17)", "26"},
                         {"Form1.Text103(17)", "21.8"}, // 21.05 x root of 28 / 26 = 21.8446
                         {"Form1.Text38", " Bench at 28 inches. Ports as cast\r\nSecond line: "
                                          "Text101_16 = 5\r\nComments = are kept; Öl 5 €"}});
    bench.platform.Choose(bench.folder.File("again.dat"));
    EXPECT_EQ(bench.Click("Form1.Save_Data"),
              (Events{"chooser to save", "plain box: 124 Records Written"}));
    std::string expected = bytes;
    // Each trip puts one more blank before the comment.
    expected.insert(expected.find("Bench"), 1, ' ');
    EXPECT_EQ(bench.folder.Read("again.dat"), expected);
    EXPECT_EQ(bench.Get("Form1.Text39"), bench.folder.File("again.dat"));
}

TEST(Flow_Data_File, A_Save_Takes_The_Place_Of_The_Old_File) {
    Test_Bench bench;
    bench.folder.Write("old.dat", std::string(100000, 'x'));
    bench.platform.Choose(bench.folder.File("old.dat"));
    bench.Click("Form2.Save_Data");
    const std::string content = bench.folder.Read("old.dat");
    EXPECT_TRUE(content.starts_with("Text101_16 = 0\r\nText101_17 = 50\r\n"));
    EXPECT_TRUE(content.ends_with("Text211_30 = 0\r\nComments = \r\n"));
    EXPECT_EQ(std::ranges::count(content, '\n'), 124);
    EXPECT_EQ(bench.folder.Names(), Events{"old.dat"});
}

struct Line_Case {
    const char* name;
    std::string_view bytes;
    std::string_view field;
    std::string_view text;
};

TEST(Flow_Data_File, Reads_Lines_As_Their_Writers_Meant_Them) {
    constexpr Line_Case cases[] = {
        {"capitals", "TEXT104_6 = 1.3\r\n", "Form1.Text104(6)", "1.3"},
        {"the part number keeps its case", "text102_0 = ProMax II\n", "Form1.Text102(0)",
         "ProMax II"},
        {"other values lose it", "Text104_0 = 4.0E0\n", "Form1.Text104(0)", "4.0e0"},
        {"bare LF, no end of the last line", "Text104_6 = 1.3\nText104_4 = 0.3", "Form1.Text104(4)",
         "0.3"},
        {"CR alone where no LF is", "Text104_6 = 1.3\rText104_4 = 0.3\r", "Form1.Text104(4)",
         "0.3"},
        {"its comment", "Comments = a\rb\r\rc\r", "Form1.Text38", " a\r\nb\r\n\r\nc"},
        {"its first part", "Text102_0 = a\rText104_6 = 1.3", "Form1.Text102(0)", "a"},
        {"LF behind the end mark", "Text102_0 = a\rText104_6 = 1.3\x1A\n", "Form1.Text104(6)",
         "1.3"},
        {"one CR goes", "Text102_0 = a\r\r\n", "Form1.Text102(0)", "a\r"},
        {"first equals sign counts", "Text102_0 = a = b\n", "Form1.Text102(0)", "a = b"},
        {"byte order mark", "\xEF\xBB\xBFText104_6 = 1.3\n", "Form1.Text104(6)", "1.3"},
        {"Windows letters", "Text102_0 = Gr\xF6\xDF\x65\n", "Form1.Text102(0)", "Größe"},
        {"letters before the sign", "Text102_0 = Größe=7\n", "Form1.Text102(0)", "Größe=7"},
        {"end mark of old systems", "Text104_6 = 1.3\n\x1AText104_6 = 9\n", "Form1.Text104(6)",
         "1.3"},
        {"trailing blank", "Text104_6 = 1.3 \n", "Form1.Text104(6)", "1.3 "},
        {"no value", "Text102_10 =\n", "Form1.Text102(10)", ""},
        {"no blank behind the sign", "Text104_6 =51.3\n", "Form1.Text104(6)", "1.3"},
        {"a lift goes to both columns", "Text101_20 = 210\n", "Form1.Text108(20)", "210"},
        {"row half to even", "Text101_16.5 = 7\n", "Form1.Text101(16)", "7"},
        {"row before the sign lost its blank", "Text102_10=N3\n", "Form1.Text102(1)", "3"},
        {"a caption may be overwritten", "Text106_4 = Inlet\n", "Form1.Text106(4)", "inlet"},
        {"decimal comma", "Text104_6 = 1,31\n", "Form1.Text104(6)", "1.31"},
        {"first comma of a text", "Text102_0 = a,b,c\n", "Form1.Text102(0)", "a.b,c"},
        {"comment", "Comments = a\r\n\r\nb", "Form1.Text38", " a\r\n\r\nb"},
        {"comment in capitals", "COMMENTS = Big\n", "Form1.Text38", " Big"},
        {"comment without its blank", "comments =x\n", "Form1.Text38", "x"},
        {"empty comment", "Comments = \n", "Form1.Text38", " "},
        {"keys in a comment", "Comments = a\nComments = b\nText104_6 = 9\n", "Form1.Text104(6)",
         "1.28"},
        {"a comment begins once", "Comments = a\nComments = b\n", "Form1.Text38",
         " a\r\nComments = b"},
        {"early rows stay", "Text102_0 = x\n", "Form1.Text106(27)", "277"},
        {"last rows are cleared", "Text102_0 = x\n", "Form1.Text106(28)", "0"},
        {"their lifts too", "Text102_0 = x\n", "Form1.Text108(30)", "0"},
        {"their swirl is not", "Text102_0 = x\n", "Form1.Text207(28)", "1400"},
        {"an empty file", "", "Form1.Text107(29)", "0"},
    };
    for (const Line_Case& c : cases) {
        Test_Bench bench;
        bench.platform.Choose(bench.folder.Write("test.dat", c.bytes));
        const Events events = bench.Click("Form1.Load_Data");
        ASSERT_EQ(events.size(), 3U) << c.name << ": " << events.at(1);
        EXPECT_EQ(bench.Get(c.field), c.text) << c.name;
    }
}

TEST(Flow_Data_File, An_End_Mark_In_A_Field_Does_Not_Cut_The_File) {
    Test_Bench bench;
    bench.Set("Form1.Text102(0)", "Pro\x1AMax");
    bench.Set("Form1.Text38", "a\x1A\r\nb\x1A");
    const std::string text = Flow_File_Text(bench.session, bench.session.Sheet(1));
    EXPECT_EQ(text.find('\x1A'), std::string::npos);
    EXPECT_TRUE(Read_Flow_Records(bench.session, bench.session.Sheet(2), text));
    Expect_Texts(bench, {{"Form2.Text102(0)", "ProMax"}, {"Form2.Text38", " a\r\nb"}});
    EXPECT_EQ(bench.Get("Form1.Text102(0)"), "Pro\x1AMax") << "the screen keeps it";
}

TEST(Flow_Data_File, Comma_Mode_Reads_Both_Marks) {
    Test_Bench bench({.point = ","});
    bench.platform.Choose(bench.folder.Write("test.dat", "Text104_6 = 1.31\nText104_4 = 0,33\n"));
    bench.Click("Form1.Load_Data");
    Expect_Texts(bench, {{"Form1.Text104(6)", "1,31"}, {"Form1.Text104(4)", "0,33"}});
    EXPECT_EQ(bench.Get("Form1.Text39"), bench.folder.File("test.dat")) << "not ,dat";
}

TEST(Flow_Data_File, Finds_A_Preloaded_File_By_Its_Name) {
    struct Case {
        const char* name;
        std::string_view on_disk;
        std::string_view asked;
        std::string_view point;
        bool found;
    };

    constexpr Case cases[] = {
        {"in the program's folder", "head.dat", "head.dat", ".", true},
        {"blanks around it", "head.dat", "  head.dat ", ".", true},
        {"lower-cased on its way", "Head.DAT", "head.dat", ".", true},
        {"comma from the decimal switch", "Head.dat", "head,dat", ",", true},
        {"no comma in dot mode", "head.dat", "head,dat", ".", false},
        {"not there", "head.dat", "other.dat", ".", false},
        {"another folder", "head.dat", "/nowhere/head.dat", ".", false},
        {"below it", "Heads/V8/Head.dat", "heads/v8/head.dat", ".", true},
        {"through a folder above", "Heads/V8/Head.dat", "./HEADS/../heads/v8/head.DAT", ".", true},
        {"comma from the switch below it", "Heads/V8/Head.dat", "heads/v8/head,dat", ",", true},
        {"a folder that is not there", "Heads/V8/Head.dat", "heads/v6/head.dat", ".", false},
    };
    for (const Case& c : cases) {
        Test_Bench bench({.point = std::string(c.point)});
        fs::create_directories(bench.folder.File("Heads/V8"));
        const std::string path = bench.folder.Write(c.on_disk, "Text102_0 = Found\n");
        Load_Flow_File(bench.session, bench.session.Sheet(4), c.asked);
        EXPECT_EQ(bench.Take_Events(), c.found ? Events{} : Events{not_loaded}) << c.name;
        EXPECT_EQ(bench.Get("Form4.Text102(0)"), c.found ? "Found" : "E7TE") << c.name;
        const std::string shown = bench.Get("Form4.Text39");
        EXPECT_TRUE(c.found ? fs::equivalent(shown, path) : shown.empty()) << c.name;
    }
}

TEST(Flow_Data_File, Finds_A_Preloaded_File_In_The_Programs_Folder_Alone) {
    Test_Bench bench;
    const Temp_Folder elsewhere; // a file of that name where the program was started
    fs::create_directory(elsewhere.File("heads"));
    elsewhere.Write("heads/head.dat", "Text102_0 = Foreign\n");
    const fs::path before = fs::current_path();
    fs::current_path(elsewhere.Path());
    Load_Flow_File(bench.session, bench.session.Sheet(1), "heads/head.dat");
    EXPECT_EQ(bench.Take_Events(), Events{not_loaded});
    fs::current_path(before);
}

TEST(Flow_Data_File, Prefers_The_Exact_Name_Then_The_First_In_Byte_Order) {
    Test_Bench bench;
    bench.folder.Write("HEAD.dat", "Text102_0 = first in byte order\n");
    bench.folder.Write("Head.dat", "Text102_0 = second\n");
    Load_Flow_File(bench.session, bench.session.Sheet(1), "head.dat");
    EXPECT_EQ(bench.Get("Form1.Text102(0)"), "first in byte order");
    Load_Flow_File(bench.session, bench.session.Sheet(1), "Head.dat");
    EXPECT_EQ(bench.Get("Form1.Text102(0)"), "second");
}

TEST(Flow_Data_File, What_Cannot_Be_Opened_Changes_Nothing) {
    Test_Bench bench;
    bench.Set("Form1.Text39", "before.dat");
    const Events refused{"chooser to open", not_loaded, "focus Form1.Text101(16)"};
    for (const auto& choice :
         {std::optional<std::string>(), std::optional(bench.folder.File("missing.dat")),
          std::optional(bench.folder.Path())}) {
        bench.platform.Choose(choice);
        EXPECT_EQ(bench.Click("Form1.Load_Data"), refused) << choice.value_or("cancel");
    }
    bench.platform.Choose(std::nullopt);
    EXPECT_EQ(bench.Click("Form1.Save_Data"), (Events{"chooser to save", not_saved}));
    Expect_Texts(bench, {{"Form1.Text39", "before.dat"}, {"Form1.Text106(28)", "282"}});
}

} // namespace

} // namespace kestrum
