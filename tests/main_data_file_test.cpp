#include "files/main_data_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrum {

namespace {

const std::string flow_not_loaded = "exclamation box: Flow Data File has Not been Loaded";

/// Every value differs from the one of a start and from its neighbours'. The user gives Mach number
/// and engine speed; the port area that follows is 3.625 x 4.125^2 x 0.00353678 x 6543 / 574.
const std::string all_values = "Check1 = Yes\r\nCheck2 = No\r\nCheck3 = Yes\r\n"
                               "Flow1 = one.dat\r\nFlow2 = two.dat\r\nFlow3 = three.dat\r\n"
                               "Flow4 = four.dat\r\nFlow5 = five.dat\r\nOption4 = 2\r\n"
                               "Comp_Name = Head Shop\r\nComp_Street = 5 Port Lane\r\n"
                               "Comp_City = Bielefeld\r\nComp_Phone = 0521 4711\r\n"
                               "Comp_Web = Heads.example\r\nLogo_SW = 0\r\n"
                               "Logo_Name = pictures/Shop.bmp\r\nLogo_Top = 21.5\r\n"
                               "Logo_Left = 345\r\nForm50Check1 = Yes\r\nForm50Check2 = No\r\n"
                               "Form50Check3 = Yes\r\nForm50Check4 = Yes\r\nGrid_SW = 0\r\n"
                               "Grid_Color = 1193046\r\nGrid_DrawStyle = 1\r\n"
                               "Text101_3 = 0.51\r\nText101_8 = 11.5\r\nText102_9 = 201\r\n"
                               "Text103_3 = 2.487\r\nText103_8 = 251\r\nText104_3 = 4.125\r\n"
                               "Text104_9 = 5.25\r\nText105_3 = 3.625\r\nText106_9 = 2.5\r\n"
                               "Text109_3 = 6543\r\nText111_3 = 6\r\n"
                               "Comments = Two lines\r\nof Comment\r\n";

Events Load_Main(Test_Bench& bench, std::string_view bytes) {
    Load_Main_File(bench.session, bench.folder.Write("main.dta", bytes));
    return bench.Take_Events();
}

std::string Saved(Test_Bench& bench) {
    bench.session.file.path = bench.folder.File("again.dta");
    Save_Main_File(bench.session);
    EXPECT_EQ(bench.Take_Events(), Events{});
    return bench.folder.Read("again.dta");
}

TEST(Main_Data_File, A_Round_Trip_Changes_No_Byte_But_One) {
    Test_Bench bench;
    for (const char* const name : {"one.dat", "two.dat", "three.dat", "four.dat", "five.dat"}) {
        bench.folder.Write(name, "Text102_0 = " + std::string(name) + "\r\n");
    }
    EXPECT_EQ(Load_Main(bench, all_values), Events{});
    Expect_Texts(bench, {{"Form1.Text102(0)", "one.dat"}, {"Form5.Text102(0)", "five.dat"}});
    const Position& logo = bench.session.Form60().Picture2.Moved_To();
    EXPECT_EQ(logo.top, 21.5);
    EXPECT_EQ(logo.left, 345);
    std::string expected = all_values;
    expected.insert(expected.find("Two lines"), 1, ' '); // each trip puts one more before it
    EXPECT_EQ(Saved(bench), expected);
}

TEST(Main_Data_File, Says_In_Which_Units_It_Is) {
    Test_Bench bench;
    EXPECT_EQ(Load_Main(bench, "Check2 = Yes\r\nText104_3 = 101.6\r\n"), Events{});
    EXPECT_EQ(bench.At("Main.Check2").Value(), 1);
    // 1.28 inches of the sample head are 32.512 mm; the bore counts as it stands in the file.
    Expect_Texts(bench, {{"Form1.Text104(6)", "32.512"}, {"Main.Text104(3)", "101.6"}});
    EXPECT_NE(Saved(bench).find("Check2 = Yes\r\n"), std::string::npos);
    EXPECT_EQ(Load_Main(bench, "Check2 = yes \r\n"), Events{}) << "exactly yes";
    EXPECT_EQ(bench.At("Main.Check2").Value(), 0);
    EXPECT_EQ(bench.Get("Main.Text104(3)"), "4.0");
}

TEST(Main_Data_File, A_Name_Of_Four_Characters_Loads_Nothing) {
    for (const bool by_panel : {false, true}) {
        Test_Bench bench;
        bench.folder.Write("x.da", "Text102_0 = Four\r\n");
        bench.folder.Write("x.dat", "Text102_0 = Five\r\n");
        const auto name_and_load = [&](const std::string& name) {
            if (!by_panel) {
                return Load_Main(bench, "Flow3 = " + name + "\r\n");
            }
            bench.Set("Main.Text1(2)", name);
            return bench.Click("Main.Command46");
        };
        const std::string before = bench.Get("Form3.Text102(0)");
        EXPECT_EQ(name_and_load("x.da"), Events{});
        EXPECT_EQ(bench.Get("Form3.Text102(0)"), before) << by_panel;
        EXPECT_EQ(name_and_load("x.dat"), Events{});
        EXPECT_EQ(bench.Get("Form3.Text102(0)"), "Five") << by_panel;
        EXPECT_EQ(name_and_load("y.dat"), Events{flow_not_loaded});
    }
}

TEST(Main_Data_File, Names_Of_Both_Kinds_Are_Meant_In_The_Programs_Folder) {
    Test_Bench bench;
    std::filesystem::create_directories(bench.folder.File("Shop/Pictures"));
    bench.folder.Write("Shop/Pictures/Logo.gif", std::string_view("GIF89a\x40\0\x30\0", 10));
    bench.folder.Write("Shop/Head.dat", "Text102_0 = Found\r\n");
    EXPECT_EQ(Load_Main(bench, "Flow2 = Shop/Head.dat\r\nLogo_SW = 1\r\n"
                               "Logo_Name = shop/pictures/logo.GIF\r\n"),
              Events{});
    EXPECT_EQ(bench.Get("Form2.Text102(0)"), "Found");
    EXPECT_EQ(bench.session.settings.logo.file, "shop/pictures/logo.GIF");
    EXPECT_EQ(bench.Get("Form60.Logo"), "Logo -- Is ON");
}

TEST(Main_Data_File, The_Path_Is_Known_Though_There_Is_No_Such_File) {
    Test_Bench bench;
    EXPECT_EQ(bench.session.file.path, bench.folder.File("zxqw1234.sav"));
    for (const std::string_view button :
         {"Main.Load_Data", "Form2.Load_Data", "Main.Load_Co_Name"}) {
        const std::string none = bench.folder.File(std::string(button));
        bench.platform.Choose(none);
        static_cast<void>(bench.Click(button));
        EXPECT_EQ(bench.session.file.path, none);
    }
}

TEST(Main_Data_File,
     What_The_User_Loads_Tells_Of_Unnamed_Inputs_And_What_The_Start_Reads_Does_Not) {
    Test_Bench bench;
    const std::string path = bench.folder.Write("main.dta", "Text104_3 = 4.25\r\n");
    const auto is_marked = [&] { return bench.At("Main.Text33").Is_Left(); };
    bench.session.file.path = path;
    EXPECT_TRUE(Load_Session_File(bench.session));
    EXPECT_EQ(bench.Get("Main.Text104(3)"), "4.25");
    EXPECT_EQ(bench.session.file.news, "");
    EXPECT_FALSE(is_marked());
    EXPECT_TRUE(Load_Main_File(bench.session, path));
    EXPECT_NE(bench.session.file.news, "");
    EXPECT_TRUE(is_marked());
}

TEST(Main_Data_File, Files_Of_Both_Separators_Serve_In_One_Session) {
    for (const char* const point : {".", ","}) {
        Test_Bench bench({.point = point});
        bench.folder.Write("dots.dat", "Text104_6 = 1.31\r\n");
        bench.folder.Write("commas.dat", "Text104_6 = 1,32\r\n");
        EXPECT_EQ(Load_Main(bench, "Flow1 = dots.dat\r\nFlow2 = commas.dat\r\nText104_3 = 4,25\r\n"
                                   "Logo_Top = 1.5\r\nLogo_Left = 2,5\r\nText105_3 = 3.5\r\n"),
                  Events{});
        const std::string mark(point);
        Expect_Texts(bench, {{"Form1.Text104(6)", "1" + mark + "31"},
                             {"Form2.Text104(6)", "1" + mark + "32"},
                             {"Main.Text104(3)", "4" + mark + "25"},
                             {"Main.Text105(3)", "3" + mark + "5"}});
        EXPECT_EQ(bench.session.Form60().Picture2.Moved_To().top, 1.5);
        EXPECT_EQ(bench.session.Form60().Picture2.Moved_To().left, 2.5);
    }
}

TEST(Main_Data_File, A_Huge_Session_File_Stops_No_Start) {
    const Temp_Folder folder;
    const std::string path = folder.Write("zxqw1234.sav", "");
    std::filesystem::resize_file(path, 16777217);
    Test_Bench bench;
    Load_Main_File(bench.session, path);
    EXPECT_EQ(bench.Take_Events(), Events{"plain box: MAIN Data File has Not been Loaded"});
}

} // namespace

} // namespace kestrum
