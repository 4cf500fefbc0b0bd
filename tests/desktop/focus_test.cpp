#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace kestrum::desktop {
namespace {

const std::string zero_box = "exclamation box: Note: This Field can not be Blank / Empty "
                             "and,\r\nMust have a Numerical Value "
                             "other than Zero.";
const std::string blank_box = "exclamation box: This Field can not be Blank / Empty.";

std::vector<std::string> Stops(Desktop_Bench& bench, std::size_t count) {
    std::vector<std::string> stops;
    while (stops.size() < count) {
        stops.push_back(bench.Focus());
        bench.Press(Qt::Key_Tab);
    }
    return stops;
}

TEST(Focus, Tab_Goes_Down_The_Columns_Of_The_Header_Then_Along_The_Rows) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text102(0)");
    const std::vector<std::string> header{
        "Form1.Text102(0)",  "Form1.Text102(1)",  "Form1.Text102(3)",  "Form1.Text102(4)",
        "Form1.Text102(6)",  "Form1.Text102(8)",  "Form1.Text102(10)", "Form1.Text104(0)",
        "Form1.Text104(1)",  "Form1.Text104(3)",  "Form1.Text104(4)",  "Form1.Text104(6)",
        "Form1.Text104(8)",  "Form1.Text106(0)",  "Form1.Text106(1)",  "Form1.Text106(2)",
        "Form1.Text106(3)",  "Form1.Text106(6)",  "Form1.Text108(0)",  "Form1.Text108(1)",
        "Form1.Text108(2)",  "Form1.Text108(3)",  "Form1.Text108(6)",  "Form1.Text108(7)",
        "Form1.Text108(8)",  "Form1.Text110(5)",  "Form1.Text110(6)",  "Form1.Text112(6)",
        "Form1.Text101(16)", "Form1.Text106(16)", "Form1.Text107(16)", "Form1.Text101(17)"};
    EXPECT_EQ(Stops(bench, header.size()), header);
    bench.Tab_To("Form1.Text107(30)");
    EXPECT_EQ(Stops(bench, 5),
              (std::vector<std::string>{"Form1.Text107(30)", "Form1.Command1", "Form1.Sort",
                                        "Form1.NextPage", "Form1.Text102(0)"}));
}

TEST(Focus, The_Second_Page_Has_Its_Own_Order_And_Gives_The_Focus_Back) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Click("Form1.NextPage");
    EXPECT_EQ(bench.Focus(), "Form1.Text207(30)");
    EXPECT_FALSE(bench.Widget("Form1.Text101(16)").isVisible());
    bench.Tab_To("Form1.Text202(4)");
    EXPECT_EQ(Stops(bench, 8), (std::vector<std::string>{
                                   "Form1.Text202(4)", "Form1.Text202(5)", "Form1.Text204(4)",
                                   "Form1.Text204(5)", "Form1.Text207(16)", "Form1.Text210(16)",
                                   "Form1.Text211(16)", "Form1.Text207(17)"}));
    bench.Click("Form1.Exit");
    EXPECT_EQ(bench.Focus(), "Form1.Text101(16)");
    EXPECT_FALSE(bench.Widget("Form1.Text207(30)").isVisible());
}

TEST(Focus, Tab_Passes_Over_What_The_Program_Calculates) {
    Desktop_Bench bench;
    bench.Tab_To("Main.Text103(3)");
    EXPECT_EQ(Stops(bench, 6),
              (std::vector<std::string>{"Main.Text103(3)", "Main.Text104(3)", "Main.Text105(3)",
                                        "Main.Text111(3)", "Main.Text101(8)", "Main.Text103(8)"}));
    bench.Click("Main.Check1"); // the user enters the Mach number
    bench.Tab_To("Main.Text101(3)");
    EXPECT_EQ(Stops(bench, 2), (std::vector<std::string>{"Main.Text101(3)", "Main.Text103(3)"}));
}

TEST(Focus, A_Refused_Field_Keeps_The_Focus_And_Shows_One_Box) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Focus(), "Form1.Text104(6)");
    EXPECT_EQ(bench.Take_Events(), Events{zero_box});
    bench.Type("1.3");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Focus(), "Form1.Text104(8)");
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST(Focus, A_Limit_Shows_Its_Box_And_Takes_The_Focus_Back) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text106(6)", "5");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Focus(), "Form1.Text106(6)");
    EXPECT_EQ(bench.Take_Events(), Events{"plain box: Number of Intake Valves Must be 1 to 4"});
    EXPECT_EQ(bench.Edit("Form1.Text106(6)").selectedText(), QStringLiteral("5"));
}

TEST(Focus, Two_Refusing_Fields_Do_Not_Throw_The_Focus_To_And_Fro) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.At("Form1.Text107(17)").Set_Text("");
    bench.Enter("Form1.Text106(17)", "");
    for (const char* const next : {"Form1.Text107(17)", "Form1.Text101(18)"}) {
        bench.Click(next);
        EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
        EXPECT_EQ(bench.Take_Events(), Events{blank_box});
    }
}

TEST(Focus, A_Button_Waits_For_The_Check_Of_The_Field) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const std::string before = bench.Text("Form1.Text102(18)");
    bench.Enter("Form1.Text106(18)", "99");
    bench.Enter("Form1.Text106(17)", "");
    bench.Click("Form1.Command1");
    EXPECT_EQ(bench.Take_Events(), Events{blank_box});
    bench.Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(bench.Take_Events(), Events{blank_box});
    EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
    EXPECT_EQ(bench.Text("Form1.Text102(18)"), before);
    bench.Type("40");
    bench.Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(bench.Text("Form1.Text102(18)"), "99.0");
    EXPECT_EQ(bench.Text("Form1.Text102(17)"), "40.0");
}

TEST(Focus, Another_Window_Or_The_Closing_Of_This_One_Runs_No_Check) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text106(17)", "");
    QWidget* const sheet = bench.Widget("Form1.Text106(17)").window();
    QWidget* const main = bench.Widget("Main.Command51").window();
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main));
    sheet->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(sheet));
    EXPECT_EQ(bench.Take_Events(), Events{});
    EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
    sheet->close();
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST(Focus, Leaving_A_Lift_Copies_It) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text101(20)", "222");
    EXPECT_EQ(bench.Text("Form1.Text108(20)"), "200");
    bench.Press(Qt::Key_Down);
    EXPECT_EQ(bench.Text("Form1.Text108(20)"), "222");
}

TEST(Focus, Tab_Selects_And_The_Mouse_Places_The_Caret) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text104(6)");
    EXPECT_EQ(bench.Edit("Form1.Text104(6)").selectedText(), QStringLiteral("1.28"));
    bench.Click("Form1.Text104(8)");
    EXPECT_FALSE(bench.Edit("Form1.Text104(8)").hasSelectedText());
    EXPECT_FALSE(bench.program.Its_Session().mouse_down);
    bench.Tab_To("Form1.Text104(6)");
    EXPECT_TRUE(bench.Edit("Form1.Text104(6)").hasSelectedText());
}

TEST(Focus, The_Program_Starts_In_Its_First_Field_With_The_Text_Selected) {
    Desktop_Bench bench;
    EXPECT_EQ(bench.Focus(), "Main.Text103(3)");
    EXPECT_EQ(bench.Edit("Main.Text103(3)").selectedText(), QStringLiteral("2.75"));
    bench.Type("9");
    EXPECT_EQ(bench.Text("Main.Text103(3)"), "9");
}

TEST(Focus, A_Press_Whose_Release_Got_Lost_Ends_With_The_Focus) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    QTest::mousePress(&bench.Widget("Form1.Text104(8)"), Qt::LeftButton);
    EXPECT_TRUE(bench.program.Its_Session().mouse_down);
    bench.Tab_To("Form1.Text104(6)");
    EXPECT_TRUE(bench.Edit("Form1.Text104(6)").hasSelectedText());
}

} // namespace
} // namespace kestrum::desktop
