#include "desktop/field_tips.h"
#include "desktop/text_bridge.h"
#include "tests/desktop/desktop_bench.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

/// What is said when the mouse rests on a cell.
std::string Tip_At(Desktop_Bench& bench, std::string_view address) {
    QWidget& widget = bench.Widget(address);
    QHelpEvent rests(QEvent::ToolTip, QPoint(3, 3), widget.mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(&widget, &rests);
    return From_Qt(QToolTip::text());
}

TEST(Field_Tips, Tell_A_Beginner_What_A_Cell_Is) {
    Desktop_Bench bench;
    const Field_Tips tips(bench.program);
    bench.Open_Sheet();
    EXPECT_TRUE(Tip_At(bench, "Form1.Text102(3)").starts_with("<p>Valve diameter: "));
    EXPECT_TRUE(Tip_At(bench, "Form1.Text102(3)").ends_with(" [in]</p>"));
    EXPECT_TRUE(Tip_At(bench, "Form1.Text111(20)").starts_with("<p>SAE CD: "));
    EXPECT_TRUE(Tip_At(bench, "Main.Text107(8)").ends_with(" [lb-ft/cu in]</p>"));
    bench.At("Form1.Text102(0)")
        .Set_Text("A <name> that is far too long for the cell that it is in");
    EXPECT_TRUE(Tip_At(bench, "Form1.Text102(0)").starts_with("<p>A &lt;name&gt; that is far"));
    EXPECT_EQ(bench.Help("Form1"), "") << "the line at the foot is the session's";
    bench.Click("Main.Check2");
    EXPECT_TRUE(Tip_At(bench, "Form1.Text102(3)").ends_with(" [mm]</p>"));
    static_cast<void>(bench.Take_Events());
}

TEST(Field_Tips, The_Help_Menu_Of_A_Sheet_Shows_The_Drawing) {
    Desktop_Bench bench;
    const Field_Tips tips(bench.program);
    bench.Open_Sheet();
    auto* const entry = bench.Widget("Form1.Text102(3)")
                            .window()
                            ->findChild<QAction*>(QStringLiteral("Form1.Dimensions"));
    ASSERT_NE(entry, nullptr);
    entry->trigger();
    QWidget* drawing = nullptr;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        drawing =
            window->windowTitle() == entry->text().remove(QLatin1Char('&')) ? window : drawing;
    }
    ASSERT_NE(drawing, nullptr);
    EXPECT_GT(drawing->grab().toImage().convertToFormat(QImage::Format_Indexed8).colorCount(), 4);
    QTest::keyClick(drawing, Qt::Key_Escape);
    EXPECT_FALSE(drawing->isVisible());
    static_cast<void>(bench.Take_Events());
}

} // namespace
} // namespace kestrum::desktop
