#include "files/report_config.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

const std::string not_loaded = "exclamation box: Configuration File has Not been Loaded";
const std::string given_up = "exclamation box: Error Loading Configuration Data File --- If you "
                             "have Not edited the file Please Contact us!";

std::string Not_Handled(const std::string& line) {
    return "plain box [OK, Cancel] titled TARVEX - Error Message: Record not Handled -->" + line;
}

std::string Invalid(const std::string& number, const std::string& line) {
    return "exclamation box: Invalid Input Record # - " + number + "   Data --> " + line;
}

class Report_Config : public ::testing::Test {
protected:
    explicit Report_Config(const Bench_Options& options = {}) : bench_(options) {}

    /// Loads a file of these bytes over the stored selection. Gives the boxes.
    Events Load(std::string_view bytes) {
        bench_.Click("Form70.Select");
        bench_.platform.Choose(bench_.folder.Write("choice.cfg", bytes));
        Events events = bench_.Click("Form70.Load");
        EXPECT_EQ(events.front(), "chooser to open");
        events.erase(events.begin());
        return events;
    }

    int Value(std::string_view address) { return bench_.At(address).Value(); }

    Test_Bench bench_;
};

class Report_Config_With_Commas : public Report_Config {
protected:
    Report_Config_With_Commas() : Report_Config({.point = ","}) {}
};

TEST_F(Report_Config, Saves_Every_Button_And_Box_And_Brings_Them_Back) {
    bench_.Click("Form70.Option1(2)");
    bench_.Click("Form70.Option2(1)");
    bench_.Click("Form70.Check3(0)");
    bench_.Click("Form70.Check1(3)");
    bench_.Click("Form70.Check2(0)");
    bench_.Click("Form70.Check2(29)");
    std::string wanted = "Option1 = 2\r\nOption2 = 1\r\nCheck3_0 = No\r\nCheck1_0 = Yes\r\n"
                         "Check1_1 = Yes\r\nCheck1_2 = Yes\r\nCheck1_3 = No\r\nCheck1_4 = Yes\r\n"
                         "Check2_0 = No\r\n";
    for (const char* const middle :
         {"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "10", "11", "12", "13", "14",
          "15", "16", "17", "18", "19", "20", "21", "22", "23", "24", "25", "26", "27", "28"}) {
        wanted += std::string("Check2_") + middle + " = Yes\r\n";
    }
    wanted += "Check2_29 = No\r\n";
    bench_.platform.Choose(bench_.folder.File("shop.cfg"));
    EXPECT_EQ(bench_.Click("Form70.Save"),
              (Events{"chooser to save", "plain box: 38 Records Written"}));
    EXPECT_EQ(bench_.folder.Read("shop.cfg"), wanted);
    bench_.Click("Form70.Option1(0)");
    EXPECT_EQ(Load(wanted), Events{"plain box: 38 Records Read"});
    EXPECT_EQ(Value("Form70.Option1(2)"), 1);
    EXPECT_EQ(Value("Form70.Option1(0)"), 0);
    EXPECT_EQ(Value("Form70.Check2(0)") + Value("Form70.Check3(0)") + Value("Form70.Check1(3)"), 0);
    EXPECT_EQ(Report_Config_Text(bench_.session, bench_.session.Form70()), wanted);
}

TEST_F(Report_Config, A_Cancel_Or_A_File_That_Cannot_Be_Had_Is_Told) {
    EXPECT_EQ(bench_.Click("Form70.Load"), (Events{"chooser to open", not_loaded}));
    bench_.platform.Choose(bench_.folder.File("none.cfg"));
    EXPECT_EQ(bench_.Click("Form70.Load"), (Events{"chooser to open", not_loaded}));
    const Events not_saved{"chooser to save",
                           "exclamation box: Configuration File has NOT been Saved"};
    EXPECT_EQ(bench_.Click("Form70.Save"), not_saved);
    bench_.platform.Choose(bench_.folder.File("no/folder.cfg"));
    EXPECT_EQ(bench_.Click("Form70.Save"), not_saved);
}

TEST_F(Report_Config, Takes_Lines_In_Any_Order_And_In_Capitals) {
    EXPECT_EQ(Load(""), Events{"plain box: 0 Records Read"});
    EXPECT_EQ(Load("CHECK2_ 29  = no\nOPTION2 = 2\nCheck1_1 = YES\ncheck1_2 = Yes \n"
                   "Check1_3 = \nOption1 = 1.9\nCheck2_1.9 = off\nOption1abc = 1"),
              Events{"plain box: 8 Records Read"});
    EXPECT_EQ(Value("Form70.Check2(29)"), 0);
    EXPECT_EQ(Value("Form70.Option2(2)"), 1);
    EXPECT_EQ(Value("Form70.Option2(0)"), 0);
    EXPECT_EQ(Value("Form70.Check1(1)"), 1);
    EXPECT_EQ(Value("Form70.Check1(2)"), 0) << "a blank more is not yes";
    EXPECT_EQ(Value("Form70.Check1(3)"), 0);
    EXPECT_EQ(Value("Form70.Option1(1)"), 1) << "the whole part, not rounded";
    EXPECT_EQ(Value("Form70.Check2(1)"), 0);
    EXPECT_EQ(Value("Form70.Check2(2)"), 1);
}

TEST_F(Report_Config, A_Bad_Record_Ends_The_Load_And_What_Was_Set_Stays) {
    for (const std::string line :
         {"Check1_0=Yes", "Check1_=Yes", "Check1_5 = Yes", "Check3_1 = Yes", "Check2_30 = No",
          "Check2_-1 = No", "Check2_x = No", "Check2_ = No", "Check2_1e9 = No", "check1_0",
          "Option1 = 5", "Option1 = -0.5", "Option1 = ", "Option1=1", "Option2", "Option2 = 1,0"}) {
        EXPECT_EQ(Load("Check1_4 = No\r\n" + line + "\r\nCheck1_3 = No\r\n"),
                  Events{Invalid("2", line)});
        EXPECT_EQ(Value("Form70.Check1(4)"), 0) << line;
        EXPECT_EQ(Value("Form70.Check1(3)"), 1) << line;
        EXPECT_EQ(Value("Form70.Option1(0)"), 1) << line;
    }
}

TEST_F(Report_Config, Asks_At_A_Line_That_Nobody_Knows) {
    const std::string bytes = "Check1_0 = No\r\n\r\nComments = x\r\nCheck4_1 = No\r\n"
                              "Check1_1 = No\r\n";
    EXPECT_EQ(Load(bytes), (Events{Not_Handled(""), Not_Handled("Comments = x"),
                                   Not_Handled("Check4_1 = No"), "plain box: 5 Records Read"}));
    EXPECT_EQ(Value("Form70.Check1(1)"), 0);
    bench_.platform.Answer(Box_Answer::Ok);
    bench_.platform.Answer(Box_Answer::Cancel);
    EXPECT_EQ(Load(bytes), (Events{Not_Handled(""), Not_Handled("Comments = x"), given_up}));
    EXPECT_EQ(Value("Form70.Check1(0)"), 0);
    EXPECT_EQ(Value("Form70.Check1(1)"), 1);
}

/// Every beginning of a saved file loads, or its last line is told of and nothing else happens.
TEST_F(Report_Config, Each_Prefix_Loads_Or_Is_Refused_With_One_Box) {
    bench_.Click("Form70.Clear");
    const std::string whole = Report_Config_Text(bench_.session, bench_.session.Form70());
    int loaded = 0;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string bytes = whole.substr(0, length);
        const Events events = Load(bytes);
        const std::string last = bytes.substr(bytes.rfind('\n') + 1);
        const bool read = events.back().ends_with(" Records Read");
        loaded += read ? 1 : 0;
        const bool asked = events.front() == Not_Handled(last.substr(0, last.find('\r')));
        ASSERT_TRUE(events.size() == (read && asked ? 2U : 1U)) << bytes;
        ASSERT_TRUE(read || events[0].find("Invalid Input Record # - ") != std::string::npos)
            << bytes;
    }
    EXPECT_GT(loaded, 38 * 3);
}

TEST_F(Report_Config_With_Commas, Reads_Indexes_With_Its_Own_Mark) {
    EXPECT_EQ(Load("Option1 = 1,9\r\n"), Events{"plain box: 1 Records Read"});
    EXPECT_EQ(Value("Form70.Option1(1)"), 1);
    EXPECT_EQ(Load("Option1 = 1.9\r\n"), Events{Invalid("1", "Option1 = 1.9")});
}

} // namespace

} // namespace kestrum
