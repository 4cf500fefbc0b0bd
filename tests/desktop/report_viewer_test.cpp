#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

/// The report screen with its viewer open.
class Report_Viewer_Test : public ::testing::Test {
protected:
    void SetUp() override {
        bench_.Click("Main.Command33");
        ASSERT_TRUE(QTest::qWaitForWindowActive(Viewer().window()));
        Open();
    }

    void Open() {
        bench_.Widget("Form70.Command2").setFocus();
        bench_.Click("Form70.Command2");
        bench_.Take_Events();
    }

    QPlainTextEdit& Viewer() {
        return dynamic_cast<QPlainTextEdit&>(bench_.Widget("Form70.Text38"));
    }

    [[nodiscard]] bool Is_Open() { return Viewer().isVisible(); }

    Desktop_Bench bench_;
};

TEST_F(Report_Viewer_Test, Shows_The_Whole_Report_Over_Its_Screen) {
    EXPECT_EQ(bench_.Focus(), "Form70.Text38");
    EXPECT_EQ(Viewer().geometry(), Viewer().parentWidget()->rect());
    const QFontMetrics letters = Viewer().fontMetrics();
    EXPECT_EQ(letters.horizontalAdvance(QStringLiteral("iiii")),
              letters.horizontalAdvance(QStringLiteral("WW44")));
    EXPECT_TRUE(Viewer().isReadOnly());
    const QString text = Viewer().toPlainText();
    EXPECT_TRUE(text.startsWith(QStringLiteral("Pressing the . key will cause")));
    EXPECT_EQ(text.count(QLatin1Char('\n')),
              QString::fromStdString(bench_.Text("Form70.Text38")).count(QStringLiteral("\r\n")));
    EXPECT_GT(Viewer().horizontalScrollBar()->maximum(), 0) << "lines are not wrapped";
}

TEST_F(Report_Viewer_Test, A_Key_That_Types_Closes_It_And_Gives_The_Focus_Back) {
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                              Qt::Key_Backspace, Qt::Key_Tab, Qt::Key_Comma}) {
        bench_.Press(key);
        EXPECT_FALSE(Is_Open()) << key;
        EXPECT_EQ(bench_.Text("Form70.Text38"), "");
        EXPECT_EQ(bench_.Focus(), "Form70.Command2");
        Open();
        EXPECT_TRUE(Is_Open());
    }
}

TEST_F(Report_Viewer_Test, Keys_That_Scroll_Or_Copy_Leave_It_Open) {
    bench_.Press(Qt::Key_PageDown);
    EXPECT_GT(Viewer().verticalScrollBar()->value(), 0);
    bench_.Press(Qt::Key_Right);
    EXPECT_GT(Viewer().horizontalScrollBar()->value(), 0);
    bench_.Press(Qt::Key_A, Qt::ControlModifier);
    bench_.Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), Viewer().toPlainText());
    QGuiApplication::clipboard()->clear();
    bench_.Press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), Viewer().toPlainText());
    for (const auto& [key, modifiers] :
         std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>>{
             {Qt::Key_Shift, Qt::ShiftModifier},
             {Qt::Key_F5, Qt::NoModifier},
             {Qt::Key_Delete, Qt::NoModifier},
             {Qt::Key_Q, Qt::AltModifier}, // the button beneath
             {Qt::Key_V, Qt::ControlModifier},
             {Qt::Key_Backtab, Qt::ShiftModifier}}) {
        bench_.Press(key, modifiers);
        EXPECT_TRUE(Is_Open()) << key;
        EXPECT_EQ(bench_.Focus(), "Form70.Text38") << key;
    }
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QApplication::sendEvent(&Viewer(), &held);
    EXPECT_TRUE(Is_Open()) << "a key held down from before";
}

TEST_F(Report_Viewer_Test, The_Full_Stop_Saves_First) {
    const std::string text = bench_.Text("Form70.Text38");
    bench_.dialogs.Choose(bench_.folder.File("page.prt"));
    bench_.Press(Qt::Key_Period);
    EXPECT_EQ(bench_.Take_Events(), Events{"chooser to save"});
    EXPECT_EQ(bench_.folder.Read("page.prt"), text + "\r\n");
    EXPECT_FALSE(Is_Open());
}

} // namespace
} // namespace kestrum::desktop
