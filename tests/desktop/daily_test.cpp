#include "desktop/manual.h"
#include "desktop/text_bridge.h"
#include "desktop/user_settings.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "tests/desktop/desktop_bench.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

QWidget& Window_Of(Desktop_Bench& bench, std::string_view address) {
    return *bench.Widget(address).window();
}

void Point_At(QWidget& widget) {
    QEnterEvent enter({1, 1}, {1, 1}, widget.mapToGlobal(QPointF(1, 1)));
    QApplication::sendEvent(&widget, &enter);
}

TEST(Daily, An_Edit_Greys_The_Results_And_Marks_The_Title_Until_They_Are_Done) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    QWidget& window = Window_Of(bench, "Form1.Text106(20)");
    const Control& result = bench.At("Form1.Text102(20)");
    EXPECT_FALSE(window.isWindowModified());
    const QImage fresh = bench.Widget("Form1.Text102(25)").grab().toImage();
    bench.Enter("Form1.Text106(20)", "99");
    bench.Press(Qt::Key_Tab);
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_NE(bench.Widget("Form1.Text102(25)").grab().toImage(), fresh);
    const theme::Cell_Colours old = theme::Colours_Of(result);
    EXPECT_GE(Contrast_Of(old.text, old.back), 4.5);
    EXPECT_TRUE(theme::Font_Of(result, theme::Text_Font()).italic());
    Point_At(bench.Widget("Form1.Text102(20)"));
    EXPECT_EQ(bench.Help("Form1"),
              "This result is from before the last change. Calculate brings it up to date.");
    bench.Press(Qt::Key_F9);
    EXPECT_EQ(bench.Help("Form1"), "") << "the mouse still rests on the result";
    EXPECT_EQ(bench.Widget("Form1.Text102(25)").grab().toImage(), fresh);
    bench.dialogs.Choose(bench.folder.File("run.dat"));
    bench.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(bench.Take_Events(), (Events{"chooser to save", "plain box: 124 Records Written"}));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_EQ(bench.Help("Form1"), "Saved to " + bench.folder.File("run.dat"));
}

TEST(Daily, A_Load_Marks_The_Inputs_That_Its_File_Does_Not_Name) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const std::string file = bench.folder.File("few.dat");
    Write_Whole_File(file, "Text102_0 = Iron\r\nText102_3 = 2.05\r\n");
    const QImage before = bench.Widget("Form1.Text104(3)").grab().toImage();
    bench.dialogs.Choose(file);
    bench.Press(Qt::Key_O, Qt::ControlModifier);
    bench.Take_Events();
    // Of 123 inputs two are named, and nine in the last rows become zero.
    EXPECT_EQ(bench.Help("Form1"), "Flow Test 1: 112 inputs are not in this file and keep what "
                                   "stood there; they are marked.");
    EXPECT_NE(bench.Widget("Form1.Text104(3)").grab().toImage(), before);
    EXPECT_FALSE(bench.At("Form1.Text102(3)").Is_Left());
    bench.Enter("Form1.Text104(3)", "1.6");
    EXPECT_FALSE(bench.At("Form1.Text104(3)").Is_Left());
    EXPECT_TRUE(bench.At("Form1.Text104(4)").Is_Left());
    bench.Press(Qt::Key_F9);
    EXPECT_FALSE(bench.At("Form1.Text104(4)").Is_Left());
}

TEST(Daily, A_Lift_In_Inches_Is_Told_And_Page_2_Calculates) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text101(18)", ".100");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Help("Form1"), "Lifts are in thousandths of an inch: 100 for .100");
    EXPECT_EQ(bench.Text("Form1.Text101(18)"), ".100") << "it is told, not changed";
    bench.Click("Form1.NextPage");
    bench.Enter("Form1.Text202(4)", "45");
    auto* const button = Window_Of(bench, "Form1.Text202(4)")
                             .findChild<QWidget*>(QStringLiteral("Form1.Command1 on Frame1"));
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(button->isVisible());
    EXPECT_TRUE(bench.At("Form1.Text102(20)").Owner().Results_Are_Old());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(bench.At("Form1.Text102(20)").Owner().Results_Are_Old());
    bench.Take_Events();
}

TEST(Daily, Main_Goes_On_With_Enter_And_A_Panel_Takes_The_Focus) {
    Desktop_Bench bench;
    bench.Tab_To("Main.Text104(3)");
    bench.Press(Qt::Key_Tab);
    const std::string next = bench.Focus();
    bench.Tab_To("Main.Text104(3)");
    bench.Press(Qt::Key_Return);
    EXPECT_EQ(bench.Focus(), next);
    Window_Of(bench, "Main.Text104(3)")
        .findChild<QAction*>(QStringLiteral("Main.Preload"))
        ->trigger();
    QTest::qWait(10);
    EXPECT_EQ(bench.Focus(), "Main.Text1(0)");
}

TEST(Daily, The_Mouse_Over_A_Test_Names_Its_Part) {
    Desktop_Bench bench;
    bench.At("Form2.Text102(0)").Set_Text("GT40P");
    bench.program.Its_Session().Show(bench.program.Its_Session().Form50());
    for (const char* const address : {"Main.Command2", "Form50.Option1(1)", "Form50.Option2(1)"}) {
        Point_At(bench.Widget(address));
        EXPECT_EQ(bench.Widget(address).toolTip(), QStringLiteral("GT40P")) << address;
    }
    bench.Take_Events();
}

TEST(Daily, The_Last_Files_Come_Back_From_Their_Menu) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    QStringList names;
    for (int number = 0; number < 12; ++number) {
        const std::string path = bench.folder.File("run " + std::string(1, char('a' + number)));
        Write_Whole_File(path, "Text102_0 = Head " + std::string(1, char('a' + number)) + "\r\n");
        bench.dialogs.Choose(path);
        bench.Press(Qt::Key_O, Qt::ControlModifier);
    }
    bench.Take_Events();
    auto* const menu =
        Window_Of(bench, "Form1.Text104(3)").findChild<QMenu*>(QStringLiteral("Form1.Recent"));
    menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 10);
    EXPECT_TRUE(menu->actions().first()->text().startsWith(QStringLiteral("&1 run l  (")));
    menu->actions().last()->trigger(); // "run c"
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "Head c");
    menu->aboutToShow();
    EXPECT_TRUE(menu->actions().first()->text().startsWith(QStringLiteral("&1 run c  (")));
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST(Daily, A_New_Test_Leaves_The_File_Of_The_Old_One_Alone) {
    for (const char* const entry : {"NewFromThisHead", "NewTest"}) {
        Desktop_Bench bench;
        bench.Open_Sheet();
        const std::string old = bench.folder.File("stock.dat");
        bench.dialogs.Choose(old);
        bench.Press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(bench.Text("Form1.Text39"), old);
        Window_Of(bench, "Form1.Text39")
            .findChild<QAction*>(QStringLiteral("Form1.File.") + QLatin1String(entry))
            ->trigger();
        EXPECT_EQ(bench.Text("Form1.Text39"), "");
        bench.At("Form1.Text102(0)").Set_Text("Ported");
        EXPECT_EQ(
            Proposal_For(bench.program.Its_Session(), bench.program.Its_Session().Sheet(1), ".dat"),
            "Ported.dat");
        bench.Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(bench.Text("Form1.Text39"), old);
        bench.Take_Events();
    }
}

TEST(Daily, A_Window_Opens_Where_It_Was_And_Never_Off_The_Displays) {
    QSize size;
    QPoint place;
    {
        Desktop_Bench bench;
        bench.Open_Sheet();
        QWidget& window = Window_Of(bench, "Form1.Text104(3)");
        window.setGeometry(7, 9, window.minimumSizeHint().width() + 31, 500);
        size = window.size();
        place = window.pos();
        window.close();
        bench.Take_Events();
    }
    Desktop_Bench bench(true);
    bench.Open_Sheet();
    const QWidget& window = Window_Of(bench, "Form1.Text104(3)");
    EXPECT_EQ(window.size(), size);
    EXPECT_EQ(window.pos(), place);

    const QList<QRect> displays{{0, 0, 1000, 800}, {1000, 0, 1920, 1080}};
    const auto back = [&](const QRect& area) {
        return user_settings::Brought_Back(area, displays);
    };
    EXPECT_EQ(back({1100, 50, 900, 700}), QRect(1100, 50, 900, 700));
    EXPECT_EQ(back({-300, 700, 600, 400}), QRect(0, 400, 600, 400));
    EXPECT_EQ(back({5000, 5000, 600, 400}), QRect(400, 400, 600, 400)) << "a display has gone";
    EXPECT_EQ(back({1200, 0, 3000, 3000}), QRect(1000, 0, 1920, 1080));
}

TEST(Daily, The_Manual_Has_A_Chapter_For_Each_Screen) {
    const std::string manual = Read_Whole_File(KESTRUM_MANUAL);
    QStringList anchors;
    for (const QString& line : To_Qt(manual).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('#'))) {
            QString words = line.section(QLatin1Char(' '), 1).toLower();
            anchors += words.remove(QLatin1Char(':'))
                           .remove(QLatin1Char(','))
                           .replace(QLatin1Char(' '), QLatin1Char('-'));
        }
    }
    for (const Screen_Kind kind : {Screen_Kind::Engine, Screen_Kind::Sheet, Screen_Kind::Compare,
                                   Screen_Kind::Graph, Screen_Kind::Report}) {
        EXPECT_TRUE(anchors.contains(Chapter_Of(kind))) << From_Qt(Chapter_Of(kind));
    }
}

TEST(Daily, The_Page_Of_A_Chapter_Lies_Beside_The_Manual) {
    EXPECT_EQ(
        Page_Of_Chapter(QStringLiteral("/of manual.html/doc/manual.html"), Screen_Kind::Graph),
        QStringLiteral("/of manual.html/doc/manual-the-graph.html"));
}

} // namespace
} // namespace kestrum::desktop
