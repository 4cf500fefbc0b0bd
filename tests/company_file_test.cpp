#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

constexpr std::string_view whole_file = "Company Name = Bench & Sons\r\n"
                                        "Company Address = 1 Mill Lane\r\n"
                                        "Company City = Łódź\r\n"
                                        "Company Phone = \r\n"
                                        "Company WebSite = a.example = b\r\n";

class Company_File : public ::testing::Test {
protected:
    Events Load(std::string_view bytes) {
        bench_.platform.Choose(bench_.folder.Write("a.dcn", bytes));
        Events events = bench_.Click("Main.Load_Co_Name");
        events.erase(events.begin());
        return events;
    }

    Test_Bench bench_;
};

TEST_F(Company_File, Goes_Round_Byte_For_Byte) {
    bench_.Set("Main.Text97", "old");
    EXPECT_EQ(Load(whole_file), Events{});
    Expect_Texts(bench_, {{"Main.Text94", "Bench & Sons"},
                          {"Main.Text95", "1 Mill Lane"},
                          {"Main.Text96", "Łódź"},
                          {"Main.Text97", ""},
                          {"Main.Text98", "a.example = b"}});
    bench_.platform.Choose(bench_.folder.File("b.dcn"));
    EXPECT_EQ(bench_.Click("Main.Save_Co_Name"), Events{"chooser to save"});
    EXPECT_EQ(bench_.folder.Read("b.dcn"), whole_file);
}

TEST_F(Company_File, Line_Without_A_Key_Is_Told_And_Passed_Over) {
    bench_.Set("Main.Text94", "old name");
    bench_.Set("Main.Text97", "old phone");
    EXPECT_EQ(Load("company name = x\n\nCompany Phone =\nCompany City = Bern"),
              (Events{"plain box: Bad or Invalid Record Read #1 ->>> company name = x",
                      "plain box: Bad or Invalid Record Read #2 ->>> ",
                      "plain box: Bad or Invalid Record Read #3 ->>> Company Phone ="}));
    Expect_Texts(
        bench_,
        {{"Main.Text94", "old name"}, {"Main.Text97", "old phone"}, {"Main.Text96", "Bern"}});
}

TEST_F(Company_File, Nothing_Chosen_Or_Not_There_Is_Told) {
    for (const auto& path :
         {std::optional<std::string>(), std::optional(bench_.folder.File("no"))}) {
        bench_.platform.Choose(path);
        EXPECT_EQ(
            bench_.Click("Main.Load_Co_Name"),
            (Events{"chooser to open", "plain box: Company Name Data File has Not been Loaded"}));
    }
    for (const auto& path :
         {std::optional<std::string>(), std::optional(bench_.folder.File("no/b.dcn"))}) {
        bench_.platform.Choose(path);
        EXPECT_EQ(bench_.Click("Main.Save_Co_Name"),
                  (Events{"chooser to save",
                          "plain box: Company Information Data File has NOT been Saved"}));
    }
}

} // namespace

} // namespace kestrum
