#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace kestrum::desktop {
namespace {

TEST(Keys, a_refused_key_beeps_and_does_nothing) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "1.2x.3");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "1.23");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep", "beep"}));
}

TEST(Keys, the_separator_test_sees_the_selected_text_too) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text106(17)"); // 35.8, selected
    bench.Type(".5");
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "5");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep"}));
}

TEST(Keys, a_locked_field_takes_no_key_but_its_filter_beeps) {
    Desktop_Bench bench;
    bench.Tab_To("Main.Text101(3)");
    bench.Type("9");
    EXPECT_EQ(bench.Take_Events(), Events{});
    bench.Type("x");
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
    EXPECT_EQ(bench.Text("Main.Text101(3)"), "0.5475");
}

TEST(Keys, editing_shortcuts_are_no_characters) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text104(6)");
    bench.Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1.28"));
    bench.Type("7");
    bench.Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "1.28");
    bench.Press(Qt::Key_A, Qt::ControlModifier);
    bench.Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "");
    EXPECT_EQ(bench.Take_Events(), Events{});
}

struct Pasted {
    const char* address;
    const char* clipboard;
    const char* text;
    bool beeps;
};

TEST(Keys, pasted_text_passes_the_filter_character_by_character) {
    const std::vector<Pasted> cases{
        {"Form1.Text104(6)", "12a.5.6", "12.56", true},
        {"Form1.Text104(6)", "1.44\n", "1.44", false},
        {"Form1.Text106(6)", "2.5", "25", true},
        {"Form1.Text102(0)", "GT-40, \u00fcber", "GT-40, \u00fcber", false},
        {"Form1.Text102(0)", "two\nlines", "twolines", false},
    };
    Desktop_Bench bench;
    bench.Open_Sheet();
    for (const Pasted& line : cases) {
        SCOPED_TRACE(line.clipboard);
        QApplication::clipboard()->setText(QString::fromUtf8(line.clipboard));
        bench.Enter(line.address, "");
        bench.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(bench.Text(line.address), line.text);
        EXPECT_EQ(bench.Take_Events(), line.beeps ? Events{"beep"} : Events{});
    }
}

TEST(Keys, what_an_input_method_or_a_drop_brings_passes_the_filter) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "");
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1k2"));
    QApplication::sendEvent(&bench.Widget("Form1.Text104(6)"), &composed);
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "12");

    QMimeData dragged;
    dragged.setText(QStringLiteral("x3"));
    QDragEnterEvent enter(QPoint(100, 8), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bench.Widget("Form1.Text104(6)"), &enter);
    QDropEvent drop(QPointF(100, 8), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bench.Widget("Form1.Text104(6)"), &drop);
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "123");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep", "beep"}));
}

TEST(Keys, a_comment_keeps_its_line_breaks_as_the_system_writes_them) {
    Desktop_Bench bench;
    bench.Tab_To("Main.Text38");
    bench.Press(Qt::Key_End, Qt::ControlModifier);
    bench.Press(Qt::Key_Return, Qt::ShiftModifier);
    bench.Type("second");
    EXPECT_EQ(bench.Text("Main.Text38"), "C O M M E N T S\r\nsecond");
}

struct Step {
    Qt::Key key;
    const char* from;
    const char* to;
};

TEST(Keys, keys_move_through_the_grid) {
    const std::vector<Step> steps{
        {Qt::Key_Return, "Form1.Text106(17)", "Form1.Text106(18)"},
        {Qt::Key_Enter, "Form1.Text106(18)", "Form1.Text106(19)"},
        {Qt::Key_Down, "Form1.Text106(29)", "Form1.Text106(30)"},
        {Qt::Key_Down, "Form1.Text106(30)", "Form1.Text106(30)"},
        {Qt::Key_Up, "Form1.Text101(17)", "Form1.Text101(16)"},
        {Qt::Key_Right, "Form1.Text101(17)", "Form1.Text106(17)"},
        {Qt::Key_Left, "Form1.Text107(17)", "Form1.Text106(17)"},
        {Qt::Key_Down, "Form1.Text102(1)", "Form1.Text102(3)"}, // over a result
    };
    Desktop_Bench bench;
    bench.Open_Sheet();
    for (const Step& step : steps) {
        SCOPED_TRACE(step.from);
        bench.Tab_To(step.from);
        bench.Press(step.key);
        EXPECT_EQ(bench.Focus(), step.to);
    }
}

TEST(Keys, the_caret_leaves_a_field_only_at_the_ends_of_its_text) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text106(17)");
    bench.Press(Qt::Key_End);
    bench.Press(Qt::Key_Left);
    EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
    bench.Press(Qt::Key_Right);
    EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
    bench.Press(Qt::Key_Right);
    EXPECT_EQ(bench.Focus(), "Form1.Text107(17)");
}

} // namespace
} // namespace kestrum::desktop
