#include "graph/graph_state.h"
#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace kestrum::desktop {
namespace {

TEST(Keys, A_Refused_Key_Beeps_And_Does_Nothing) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "1.2x.3");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "1.23");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep", "beep"}));
}

TEST(Keys, The_Separator_Test_Sees_The_Selected_Text_Too) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text106(17)"); // 35.8, selected
    bench.Type(".5");
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "5");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep"}));
}

TEST(Keys, A_Locked_Field_Takes_No_Key_But_Its_Filter_Beeps) {
    Desktop_Bench bench;
    bench.Tab_To("Main.Text101(3)");
    bench.Type("9");
    EXPECT_EQ(bench.Take_Events(), Events{});
    bench.Type("x");
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
    EXPECT_EQ(bench.Text("Main.Text101(3)"), "0.5475");
}

TEST(Keys, Editing_Shortcuts_Are_No_Characters) {
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

TEST(Keys, Undo_Goes_Back_Over_Typing_Buttons_And_A_Closed_Sheet) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text106(20)", "99");
    bench.Press(Qt::Key_Tab);
    bench.Click("Form1.Command1");
    const std::string flow = bench.Text("Form1.Text102(20)");
    const auto undo = [&] { bench.Press(Qt::Key_Z, Qt::ControlModifier); };
    undo();
    EXPECT_NE(bench.Text("Form1.Text102(20)"), flow);
    EXPECT_EQ(bench.Help("Form1"), "Undone: Calculate");
    undo();
    EXPECT_EQ(bench.Text("Form1.Text106(20)"), "145") << "both digits are one step";
    EXPECT_EQ(bench.Edit("Form1.Text106(20)").text(), QStringLiteral("145"));
    undo();
    EXPECT_EQ(bench.Help("Form1"), "There is nothing to undo.");
    bench.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    bench.Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bench.Text("Form1.Text102(20)"), flow);
    bench.Widget("Form1.Text106(20)").window()->close();
    bench.Take_Events();
    bench.Widget("Main.Text101(7)").activateWindow();
    QApplication::processEvents();
    bench.Tab_To("Main.Text101(7)");
    undo();
    EXPECT_EQ(bench.Help("Main"), "Undone: Close Flow Test 1");
    EXPECT_EQ(bench.Text("Form1.Text102(20)"), flow) << "the closed test is back";
    EXPECT_TRUE(bench.At("Form1.Text106(20)").Owner().visible);
    bench.Take_Events();
}

TEST(Keys, A_Refused_Key_Is_Told_In_The_Help_Line_Until_The_Next_One) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text106(17)"); // 35.8, selected
    bench.Type(".");
    EXPECT_EQ(bench.Help("Form1"),
              "The cell still holds a decimal point, selected or not. To replace its number, a "
              "digit has to come first.");
    bench.Type("9");
    EXPECT_EQ(bench.Help("Form1"), "");
    bench.Type("x");
    EXPECT_EQ(bench.Help("Form1"), "This cell takes digits and one decimal point.");
    bench.Tab_To("Form1.Text106(6)");
    EXPECT_EQ(bench.Help("Form1"), "");
    bench.Type(".");
    EXPECT_EQ(bench.Help("Form1"), "This cell takes digits only.");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep", "beep", "beep"}));
}

/// Whether anything but the text's own ink is painted in the colour of failures.
bool Flashes(QWidget& cell) {
    const QImage picture = cell.grab().toImage();
    return picture.pixelColor(0, picture.height() / 2) == QColor::fromRgb(theme::Colours().failure);
}

TEST(Keys, A_Refused_Key_Lets_The_Cell_Flash_For_A_Moment) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Tab_To("Form1.Text106(17)");
    QWidget& cell = bench.Widget("Form1.Text106(17)");
    EXPECT_FALSE(Flashes(cell));
    bench.Type("x");
    EXPECT_TRUE(Flashes(cell));
    EXPECT_TRUE(QTest::qWaitFor([&cell] { return !Flashes(cell); }, 3000));
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

struct Chord {
    const char* address;
    Qt::Key key;
    const char* arrives;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool beeps;
};

TEST(Keys, A_Modifier_Brings_No_Character_Past_The_Filter) {
    const Qt::KeyboardModifiers alt_gr = Qt::ControlModifier | Qt::AltModifier;
    const std::vector<Chord> cases{
        {"Form1.Text104(6)", Qt::Key_K, "k", Qt::AltModifier, "1.28", false},
        {"Form1.Text104(6)", Qt::Key_K, "K", Qt::AltModifier | Qt::ShiftModifier, "1.28", false},
        {"Form1.Text104(6)", Qt::Key_K, "k", Qt::MetaModifier, "1.28", false},
        {"Form1.Text104(6)", Qt::Key_5, "5", Qt::AltModifier, "1.28", false},
        {"Form1.Text104(6)", Qt::Key_Minus, "-", Qt::ControlModifier | Qt::KeypadModifier, "1.28",
         false},
        {"Form1.Text104(6)", Qt::Key_E, "\u20ac", alt_gr, "1.28", true},
        {"Form1.Text104(6)", Qt::Key_E, "\u20ac", Qt::GroupSwitchModifier, "1.28", true},
        {"Form1.Text104(6)", Qt::Key_5, "5", alt_gr, "5", false},
        {"Form1.Text102(0)", Qt::Key_K, "k", Qt::AltModifier, "E7TE", false},
        {"Form1.Text102(0)", Qt::Key_E, "\u20ac", alt_gr, "\u20ac", false},
        {"Main.Text38", Qt::Key_K, "k", Qt::AltModifier, "C O M M E N T S", false},
        {"Main.Text38", Qt::Key_K, "k", Qt::MetaModifier, "C O M M E N T S", false},
    };
    Desktop_Bench bench;
    bench.Open_Sheet();
    for (const Chord& line : cases) {
        SCOPED_TRACE(std::string(line.address) + " " + line.arrives);
        const std::string before = bench.Text(line.address);
        bench.Tab_To(line.address);
        QTest::sendKeyEvent(QTest::Click, &bench.Widget(line.address), line.key,
                            QString::fromUtf8(line.arrives), line.modifiers);
        EXPECT_EQ(bench.Text(line.address), line.text);
        EXPECT_EQ(bench.Take_Events(), line.beeps ? Events{"beep"} : Events{});
        bench.At(line.address).Set_Text(before);
        bench.program.Its_Windows().Refresh();
    }
}

struct Pasted {
    const char* address;
    const char* clipboard;
    const char* text; // null: refused, and the old text stays
};

TEST(Keys, A_Pasted_Text_Goes_In_Whole_Or_Not_At_All) {
    const std::vector<Pasted> cases{
        {"Form1.Text104(6)", "1.44\n", "1.44"},
        {"Form1.Text104(6)", "  1.44\u00a0\r\n", "1.44"},
        {"Form1.Text104(6)", "12,5", "12.5"},
        {"Form1.Text104(6)", ".5", ".5"}, // what it replaces does not count
        {"Form1.Text104(6)", "12,5 cfm", nullptr},
        {"Form1.Text104(6)", "12a.5", nullptr},
        {"Form1.Text104(6)", "1.2.3", nullptr},
        {"Form1.Text104(6)", "1,234", nullptr},
        {"Form1.Text104(6)", "1,2345", "1.2345"},
        {"Form1.Text104(6)", "1,234.5", nullptr},
        {"Form1.Text104(6)", "1.234", "1.234"},
        {"Form1.Text106(6)", "2.5", nullptr},
        {"Form1.Text106(6)", " 3 ", "3"},
        {"Form1.Text102(0)", " GT-40, \u00fcber ", "GT-40, \u00fcber"},
        {"Form1.Text102(0)", "1,234", "1,234"},
        {"Form1.Text102(0)", "two\nlines", nullptr},
    };
    Desktop_Bench bench;
    bench.Open_Sheet();
    for (const Pasted& line : cases) {
        SCOPED_TRACE(line.clipboard);
        const std::string before = bench.Text(line.address);
        QApplication::clipboard()->setText(QString::fromUtf8(line.clipboard));
        bench.Tab_To(line.address);
        bench.Press(Qt::Key_A, Qt::ControlModifier);
        bench.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(bench.Text(line.address), line.text == nullptr ? before : line.text);
        EXPECT_EQ(bench.Help("Form1").empty(), line.text != nullptr);
        EXPECT_EQ(bench.Take_Events(), line.text == nullptr ? Events{"beep"} : Events{});
    }
}

TEST(Keys, The_Decimal_Key_Of_The_Keypad_Types_The_Separator_In_Force) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.program.Its_Session().numbers.comma_mode = 1;
    bench.Enter("Form1.Text104(6)", "2");
    QTest::keyClick(QApplication::focusWidget(), '.', Qt::KeypadModifier);
    bench.Type("5");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "2,5");
}

TEST(Keys, A_Pasted_Dot_Becomes_The_Comma_Of_The_Mode) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.program.Its_Session().numbers.comma_mode = 1;
    for (const auto& [clipboard, text] :
         {std::pair("35.9", "35,9"), std::pair("2,5", "2,5"), std::pair("1.234", "2,5")}) {
        QApplication::clipboard()->setText(QString::fromUtf8(clipboard));
        bench.Tab_To("Form1.Text104(6)");
        bench.Press(Qt::Key_A, Qt::ControlModifier);
        bench.Press(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(bench.Text("Form1.Text104(6)"), text) << clipboard;
    }
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

TEST(Keys, A_Paste_Of_Thousands_Of_Digits_Is_One_Step) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "");
    QApplication::clipboard()->setText(QString(10'000, QLatin1Char('7')));
    const QSignalSpy changes(&bench.Edit("Form1.Text104(6)"), &QLineEdit::textChanged);
    bench.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), std::string(10'000, '7'));
    EXPECT_EQ(changes.size(), 1);
    QApplication::clipboard()->setText(QString(40'000, QLatin1Char('7')));
    bench.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(bench.Text("Form1.Text104(6)").size(), 10'000U) << "an editor would cut it";
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

void Compose(QWidget& field, const char* text) {
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&field, &composed);
}

void Drop(QWidget& field, const char* text) {
    QMimeData dragged;
    dragged.setText(QString::fromUtf8(text));
    QDragEnterEvent enter(QPoint(100, 8), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field, &enter);
    QDropEvent drop(QPointF(100, 8), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field, &drop);
}

TEST(Keys, An_Input_Method_And_A_Drop_Follow_The_Rule_Of_Pasting) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text104(6)", "");
    QWidget& field = bench.Widget("Form1.Text104(6)");
    Compose(field, "1k2");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "");
    Compose(field, "12");
    Drop(field, "x3");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "12");
    Drop(field, ",3");
    EXPECT_EQ(bench.Text("Form1.Text104(6)"), "12.3");
    EXPECT_EQ(bench.Take_Events(), (Events{"beep", "beep"}));
}

TEST(Keys, A_Comment_Keeps_Its_Line_Breaks_As_The_System_Writes_Them) {
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

TEST(Keys, Keys_Move_Through_The_Grid) {
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

TEST(Keys, The_Caret_Leaves_A_Field_Only_At_The_Ends_Of_Its_Text) {
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

TEST(Keys, The_Graph_Is_Read_And_Drawn_On_Without_A_Mouse) {
    Desktop_Bench bench;
    bench.Click("Main.Command50");
    bench.Click("Form50.Command2");
    ASSERT_TRUE(QTest::qWaitForWindowActive(bench.Widget("Form60.Picture1").window()));
    const auto steps = [&bench] {
        return Graph_Of(bench.program.Its_Session()).canvas.Operations().size();
    };
    const std::size_t before = steps();
    EXPECT_NE(bench.Focus(), "Form60.Picture1") << "the window does not begin with a cross";
    bench.Tab_To("Form60.Picture1");
    const std::string middle = bench.Text("Form60.Label19");
    bench.Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NE(bench.Text("Form60.Label19"), middle);
    for (int units = 0; units < 10; ++units) {
        bench.Press(Qt::Key_Left);
    }
    EXPECT_EQ(bench.Text("Form60.Label19"), middle);
    EXPECT_EQ(steps(), before);
    bench.Click("Form60.Check1");
    bench.Tab_To("Form60.Picture1");
    bench.Press(Qt::Key_Space);
    bench.Press(Qt::Key_Up, Qt::ShiftModifier);
    const std::size_t drawn = steps();
    EXPECT_GT(drawn, before);
    bench.Press(Qt::Key_Space);
    bench.Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(steps(), drawn) << "the line has ended";
}

} // namespace
} // namespace kestrum::desktop
