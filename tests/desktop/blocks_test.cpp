#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace kestrum::desktop {
namespace {

std::string Clipboard() {
    return QApplication::clipboard()->text().toStdString();
}

void Put_On_Clipboard(const char* text) {
    QApplication::clipboard()->setText(QString::fromUtf8(text));
}

/// The hands of a user at a sheet that has just been opened.
class Blocks : public testing::Test {
protected:
    Blocks() { bench.Open_Sheet(); }

    Desktop_Bench bench;

    void Shift(Qt::Key key, int times = 1) {
        for (int count = 0; count < times; ++count) {
            bench.Press(key, Qt::ShiftModifier);
        }
    }

    /// What Ctrl+C gives now.
    std::string Copied() {
        bench.Press(Qt::Key_C, Qt::ControlModifier);
        return Clipboard();
    }

    void Paste() { bench.Press(Qt::Key_V, Qt::ControlModifier); }

    void Mouse(QEvent::Type type, std::string_view grabber, std::string_view over) {
        QWidget& widget = bench.Widget(grabber);
        QWidget& target = bench.Widget(over);
        const QPoint global = target.mapToGlobal(target.rect().center());
        const bool is_move = type == QEvent::MouseMove;
        const bool is_up = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, widget.mapFromGlobal(global), global,
                          is_move ? Qt::NoButton : Qt::LeftButton,
                          is_up ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    void Drag(std::string_view from, const std::vector<const char*>& over) {
        bench.Widget(from).setFocus(Qt::MouseFocusReason);
        Mouse(QEvent::MouseButtonPress, from, from);
        for (const char* const cell : over) {
            Mouse(QEvent::MouseMove, from, cell);
        }
        Mouse(QEvent::MouseButtonRelease, from, over.back());
    }
};

TEST_F(Blocks, shift_and_the_arrows_select_and_copy_a_rectangle) {
    bench.Tab_To("Form1.Text106(17)");
    Shift(Qt::Key_Down, 2);
    Shift(Qt::Key_Right);
    Shift(Qt::Key_Up);
    EXPECT_EQ(bench.Focus(), "Form1.Text106(17)");
    EXPECT_EQ(Copied(), "35.8\t24.6\r\n73\t52\r\n");
    Shift(Qt::Key_Left, 3); // to the other side of where it began
    EXPECT_EQ(Copied(), "50\t50\t35.8\r\n100\t100\t73\r\n");
    bench.Press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "50\t50\t35.8\r\n100\t100\t73\r\n");
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST_F(Blocks, the_text_of_the_cell_is_selected_to_its_end_first) {
    bench.Tab_To("Form1.Text106(17)");
    bench.Press(Qt::Key_Home);
    bench.Press(Qt::Key_Right);
    Shift(Qt::Key_Right, 2);
    EXPECT_EQ(Copied(), "5.");
    Shift(Qt::Key_Right);
    EXPECT_EQ(Copied(), "5.8");
    QTest::sendKeyEvent(QTest::Press, QApplication::focusWidget(), Qt::Key_Right, QString(),
                        Qt::ShiftModifier);
    EXPECT_EQ(Copied(), "35.8\t24.6\r\n");
    bench.Press(Qt::Key_Escape);
    bench.Press(Qt::Key_Home);
    Shift(Qt::Key_Left);
    EXPECT_EQ(Copied(), "50\t35.8\r\n");
}

TEST_F(Blocks, a_block_ends_and_the_cell_is_itself_again) {
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"escape", [this] { bench.Press(Qt::Key_Escape); }},
        {"back to one cell", [this] { Shift(Qt::Key_Up); }},
        {"a click",
         [this] {
             bench.Click("Form1.Text106(17)");
             bench.Press(Qt::Key_A, Qt::ControlModifier);
         }},
        {"an arrow", [this] { bench.Press(Qt::Key_Down); }},
        {"tab", [this] { bench.Press(Qt::Key_Tab); }},
        {"a digit",
         [this] {
             bench.Type("7");
             bench.Press(Qt::Key_A, Qt::ControlModifier);
         }},
    };
    const std::vector<std::string> left{"35.8", "35.8", "35.8", "73", "24.6", "7"};
    for (std::size_t at = 0; at < ways.size(); ++at) {
        SCOPED_TRACE(ways[at].first);
        bench.Tab_To("Form1.Text101(30)");
        bench.Tab_To("Form1.Text106(17)");
        Shift(Qt::Key_Down);
        EXPECT_EQ(Copied(), "35.8\r\n73\r\n");
        ways[at].second();
        EXPECT_EQ(Copied(), left[at]);
    }
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "7") << "typed over the cell that it began with";
    EXPECT_EQ(bench.Text("Form1.Text106(18)"), "73");
}

TEST_F(Blocks, the_mouse_drags_a_block_over_inputs_and_results) {
    Drag("Form1.Text107(18)", {"Form1.Text107(17)", "Form1.Text106(17)"});
    EXPECT_EQ(Copied(), "35.8\t24.6\r\n73\t52\r\n");
    Drag("Form1.Text102(15)", {"Form1.Text103(16)"}); // headings and locked cells
    EXPECT_EQ(Copied(), "Intake\tExhaust\r\n0.0\t0.0\r\n");
    Drag("Form1.Text106(18)", {"Form1.Text106(19)", "Form1.Text106(18)"});
    bench.Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Copied(), "73") << "back in its cell the mouse selects text";
    Mouse(QEvent::MouseMove, "Form1.Text106(18)", "Form1.Text106(20)");
    EXPECT_EQ(Copied(), "73") << "no button is down";
}

TEST_F(Blocks, the_second_page_and_the_comparison_have_blocks_too) {
    bench.Click("Form1.NextPage");
    bench.Tab_To("Form1.Text207(17)");
    Shift(Qt::Key_Down);
    EXPECT_EQ(Copied(), "1250\r\n1600\r\n");
    bench.Click("Main.Command50");
    ASSERT_TRUE(QTest::qWaitForWindowActive(bench.Widget("Form50.Command1").window()));
    bench.Click("Form50.Command1");
    bench.Click("Form50.Text102(17)");
    Shift(Qt::Key_Left);
    Shift(Qt::Key_Down);
    EXPECT_EQ(Copied(), "50\t35.8\r\n100\t73.0\r\n");
    bench.Press(Qt::Key_Delete);
    EXPECT_EQ(bench.Text("Form50.Text101(17)"), "50") << "it is locked";
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

/// The marks of a block, looked for in the middle of the gap at a cell's right.
QColor Ground_Of(QWidget& cell) {
    const QImage picture = cell.window()->grab().toImage();
    const QPoint place = cell.mapTo(cell.window(), QPoint(cell.width() - 8, cell.height() / 2));
    return picture.pixelColor(place * picture.devicePixelRatio());
}

TEST_F(Blocks, a_block_is_seen_and_goes) {
    QWidget& inside = bench.Widget("Form1.Text107(18)");
    QWidget& outside = bench.Widget("Form1.Text107(19)");
    const QColor plain = Ground_Of(inside);
    bench.Tab_To("Form1.Text106(17)");
    Shift(Qt::Key_Down);
    Shift(Qt::Key_Right);
    EXPECT_NE(Ground_Of(inside), plain);
    EXPECT_GT(Ground_Of(inside).lightness(), 180) << "dark letters stay readable";
    EXPECT_EQ(Ground_Of(outside), plain);
    inside.window()->resize(inside.window()->size() * 1.2);
    QCoreApplication::processEvents();
    EXPECT_NE(Ground_Of(inside), plain);
    EXPECT_EQ(Ground_Of(outside), plain);
    bench.Press(Qt::Key_Escape);
    EXPECT_EQ(Ground_Of(inside), plain);
}

TEST_F(Blocks, a_spreadsheets_cells_fill_the_inputs_from_the_current_cell_on) {
    // Lift, intake and exhaust of two rows, beside the same as a page of the web.
    auto* const data = new QMimeData;
    data->setHtml(QStringLiteral("<table><tr><td>9</td><td>9</td></tr></table>"));
    data->setText(QStringLiteral("60\t40,5\t\"30\"\r\n110\t80\t55,25\r\n"));
    QApplication::clipboard()->setMimeData(data);
    bench.program.Its_Session().numbers.comma_mode = 1;
    bench.Tab_To("Form1.Text101(17)");
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text101(17)"), "60");
    EXPECT_EQ(bench.Text("Form1.Text102(17)"), "35.8");
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "40,5");
    EXPECT_EQ(bench.Text("Form1.Text107(17)"), "30");
    EXPECT_EQ(bench.Text("Form1.Text108(18)"), "110");
    EXPECT_EQ(bench.Edit("Form1.Text107(18)").text(), QStringLiteral("55,25"));
    EXPECT_EQ(bench.Focus(), "Form1.Text101(17)");
    EXPECT_EQ(Copied(), "60\t35.8\t24.6\t50\t50\t40,5\t30\r\n"
                        "110\t73.0\t52.0\t100\t100\t80\t55,25\r\n")
        << "what was filled is selected";
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST_F(Blocks, one_bad_piece_and_nothing_changes) {
    struct Refused {
        const char* clipboard;
        const char* words;
    };

    const std::vector<Refused> cases{
        {"40\t30\n80\t12 cfm\n",
         "Observed Flow Exhaust, lift 100: \"12 cfm\". Nothing was put in. This cell takes digits "
         "and one decimal point."},
        {"40\t30\t20\n",
         "Line 1, column 3 of the copied cells: \"20\". Nothing was put in. There is no input cell "
         "for it."},
        {"40\n1,250\n",
         "Observed Flow Intake, lift 100: \"1,250\". Is that a thousands mark or a decimal point? "
         "Paste the number without the mark, or type it."},
    };
    for (const Refused& line : cases) {
        bench.Tab_To("Form1.Text106(17)");
        Put_On_Clipboard(line.clipboard);
        Paste();
        EXPECT_EQ(bench.Help("Form1"), line.words);
        EXPECT_EQ(bench.Text("Form1.Text106(17)"), "35.8");
        EXPECT_EQ(bench.Text("Form1.Text107(17)"), "24.6");
        EXPECT_EQ(bench.Take_Events(), Events{"beep"});
    }
    Put_On_Clipboard("40\t30\n");
    Paste();
    EXPECT_EQ(bench.Help("Form1"), "");
    EXPECT_EQ(bench.Text("Form1.Text107(17)"), "30");
}

TEST_F(Blocks, a_copied_block_goes_to_the_same_columns_of_another_place) {
    bench.At("Form1.Text102(17)").Set_Text("36.1"); // a result between the inputs
    bench.Tab_To("Form1.Text101(17)");
    Shift(Qt::Key_Right, 6);
    bench.Press(Qt::Key_C, Qt::ControlModifier);
    bench.Tab_To("Form1.Text101(30)");
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text101(30)"), "50");
    EXPECT_EQ(bench.Text("Form1.Text102(30)"), "285.0") << "a result stays";
    EXPECT_EQ(bench.Text("Form1.Text106(30)"), "35.8");
    EXPECT_EQ(bench.Text("Form1.Text107(30)"), "24.6");
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST_F(Blocks, delete_clears_the_inputs_and_leaving_them_shows_no_box) {
    bench.Tab_To("Form1.Text102(0)");
    Shift(Qt::Key_Down, 3);
    bench.Press(Qt::Key_Delete);
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "");
    EXPECT_EQ(bench.Text("Form1.Text102(1)"), "0");
    EXPECT_EQ(bench.Text("Form1.Text102(2)"), "2.306");
    for (const char* const next : {"Form1.Text102(1)", "Form1.Text102(3)", "Form1.Text102(4)"}) {
        bench.Press(Qt::Key_Tab);
        EXPECT_EQ(bench.Focus(), next);
    }
    EXPECT_EQ(bench.Take_Events(), Events{});
    bench.Tab_To("Form1.Text102(1)");
    bench.Type("0"); // now it is the user's own zero
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Take_Events().size(), 1U);
    EXPECT_EQ(bench.Focus(), "Form1.Text102(1)");
    bench.Type("203");
    bench.Click("Form1.Text114(17)");
    Shift(Qt::Key_Right);
    bench.Press(Qt::Key_Backspace);
    EXPECT_EQ(bench.Help("Form1"), "There is no input cell here.");
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

TEST_F(Blocks, a_pasted_cell_is_left_without_a_box_until_it_is_edited) {
    bench.Tab_To("Form1.Text102(1)");
    Put_On_Clipboard("0\n2\n");
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text102(3)"), "2");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Focus(), "Form1.Text102(3)");
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST_F(Blocks, cut_copies_and_clears_and_one_piece_fills_the_block) {
    bench.Tab_To("Form1.Text106(17)");
    Shift(Qt::Key_Down);
    bench.Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "35.8\r\n73\r\n");
    EXPECT_EQ(bench.Text("Form1.Text106(18)"), "0");
    Put_On_Clipboard("12.5\n");
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "12.5");
    EXPECT_EQ(bench.Text("Form1.Text106(18)"), "12.5");
    EXPECT_EQ(bench.Text("Form1.Text106(19)"), "110");
    Put_On_Clipboard("");
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "12.5");
    EXPECT_EQ(bench.Help("Form1"), "The clipboard holds nothing that these cells could take.");
    EXPECT_EQ(bench.Take_Events(), Events{"beep"});
}

TEST_F(Blocks, a_change_is_one_command_that_a_failure_takes_back) {
    Gate& gate = bench.program.Its_Gate();
    Put_On_Clipboard("1\t2\n3\t4\n");
    bench.Tab_To("Form1.Text106(17)");
    gate.Enter([this] { Paste(); }); // while something else runs
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "35.8");
    bool fails = true;
    gate.Set_Follow_Up([&] {
        if (std::exchange(fails, false)) {
            throw std::runtime_error("no room");
        }
        bench.program.Its_Windows().Refresh();
    });
    Paste();
    EXPECT_EQ(bench.Text("Form1.Text106(17)"), "35.8");
    EXPECT_EQ(bench.Text("Form1.Text107(18)"), "52");
    EXPECT_EQ(bench.Edit("Form1.Text107(18)").text(), QStringLiteral("52"));
    EXPECT_EQ(bench.Take_Events(),
              Events{"stop box: no room\r\n\r\nNothing on the screens was changed."});
}

} // namespace
} // namespace kestrum::desktop
