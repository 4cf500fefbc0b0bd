#include "desktop/theme_style.h"
#include "tests/desktop/desktop_bench.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace kestrum::desktop {
namespace {

TEST(Looks, The_Plain_Pointer_Reaches_What_Is_Made_Later) {
    Desktop_Bench bench;
    bench.Widget("Main.Command51")
        .window()
        ->findChild<QAction*>(QStringLiteral("Main.MouseP"))
        ->trigger();
    bench.Open_Sheet();
    bench.Click("Form1.NextPage");
    bench.program.Its_Session().Show(bench.program.Its_Session().Form60());
    for (const std::string_view address :
         {"Main.Text104(3)", "Main.Command51", "Form1.Text104(6)", "Form1.Text207(17)",
          "Form1.Text38", "Form60.Picture1"}) {
        EXPECT_EQ(bench.Widget(address).cursor().shape(), Qt::ArrowCursor) << address;
        for (const QWidget* const part : bench.Widget(address).findChildren<QWidget*>()) {
            EXPECT_EQ(part->cursor().shape(), Qt::ArrowCursor) << address;
        }
    }
}

struct Desktop_Colours {
    const char* name;
    QRgb back;
    QRgb ink;
    QRgb selection;
    bool keeps_back;
};

// The greys of usual desktops, and the pure colours of those for people who need contrast.
constexpr auto desktops = std::to_array<Desktop_Colours>({
    {"light", 0xFFEFEFEF, 0xFF000000, 0xFF308CC6, false},
    {"dark", 0xFF2A2E32, 0xFFFCFCFC, 0xFF3DAEE9, false},
    {"black with yellow", 0xFF000000, 0xFFFFFFFF, 0xFFFFFF00, true},
    {"white with blue", 0xFFFFFFFF, 0xFF000000, 0xFF0000C0, true},
    {"black with a weak selection", 0xFF000000, 0xFFFFFFFF, 0xFF202020, true},
});

TEST(Looks, Every_Text_Can_Be_Read_In_The_Colours_Of_The_Desktop) {
    for (const Desktop_Colours& desktop : desktops) {
        SCOPED_TRACE(desktop.name);
        QPalette palette;
        palette.setColor(QPalette::Window, desktop.back);
        palette.setColor(QPalette::WindowText, desktop.ink);
        palette.setColor(QPalette::Highlight, desktop.selection);
        palette.setColor(QPalette::HighlightedText, desktop.back);
        const Colour_Scheme scheme = Scheme_For(palette);
        EXPECT_EQ(scheme.window == desktop.back, desktop.keeps_back);
        EXPECT_EQ(qGray(scheme.window) < qGray(scheme.ink),
                  qGray(desktop.back) < qGray(desktop.ink));
        constexpr double readable = 4.5;
        for (const QRgb back : {scheme.window, scheme.card, scheme.accent_soft}) {
            for (const QRgb ink : {scheme.ink, scheme.quiet_ink, scheme.neutral.caption,
                                   scheme.intake.caption, scheme.exhaust.caption}) {
                EXPECT_GE(Contrast_Of(back, ink), readable) << std::hex << back << ' ' << ink;
            }
        }
        for (const QRgb back : {scheme.window, scheme.card}) {
            EXPECT_GE(Contrast_Of(back, scheme.faint_ink), readable);
            EXPECT_GE(Contrast_Of(back, scheme.failure), readable);
        }
        EXPECT_GE(Contrast_Of(scheme.on_accent, scheme.accent), readable);
        EXPECT_GE(Contrast_Of(scheme.on_accent, scheme.accent_hover), readable);
        for (const Side_Colours& side : {scheme.neutral, scheme.intake, scheme.exhaust}) {
            EXPECT_GE(Contrast_Of(side.result_back, side.result_text), readable);
            EXPECT_GE(Contrast_Of(scheme.accent_soft, side.result_text), readable);
            EXPECT_GE(Contrast_Of(scheme.card, side.mark), 3); // of lines and signs
        }
        EXPECT_NE(scheme.intake.result_text, scheme.exhaust.result_text);
    }
}

TEST(Looks, Cells_Follow_When_The_Desktop_Changes_Its_Colours) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const auto back_of = [&bench](std::string_view address) {
        return bench.Widget(address).grab().toImage().pixel(6, 2);
    };
    const QRgb before = back_of("Form1.Text104(6)");
    for (const Desktop_Colours& desktop : desktops) {
        QPalette palette;
        palette.setColor(QPalette::Window, desktop.back);
        palette.setColor(QPalette::WindowText, desktop.ink);
        const Colour_Scheme scheme = Scheme_For(palette);
        QApplication::style()->polish(palette);
        EXPECT_EQ(back_of("Form1.Text104(6)"), scheme.card) << desktop.name;
        EXPECT_EQ(back_of("Form1.Text102(20)"), scheme.intake.result_back) << desktop.name;
    }
    QPalette usual;
    QApplication::style()->polish(usual);
    EXPECT_EQ(back_of("Form1.Text104(6)"), before);
}

TEST(Looks, The_Valves_Are_Told_Apart_Without_Colours) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const auto foot_of = [&bench](std::string_view address) {
        QWidget& cell = bench.Widget(address);
        const QImage picture = cell.grab().toImage();
        std::set<QRgb> colours;
        for (int x = 4; x < picture.width() - 4; ++x) {
            colours.insert(picture.pixel(x, picture.height() - 3));
        }
        return colours.size();
    };
    EXPECT_EQ(foot_of("Form1.Text102(6)"), 1); // a line without a break
    EXPECT_EQ(foot_of("Form1.Text104(6)"), 2);
}

TEST(Looks, Borders_Stay_Whole_Where_A_Unit_Is_No_Whole_Number_Of_Dots) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    QWidget& page = *bench.Widget("Form1.Text104(6)").parentWidget();
    for (const double scale : {1.0, 1.25, 1.5, 1.75}) {
        QPixmap picture(page.size() * scale);
        picture.setDevicePixelRatio(scale);
        page.render(&picture);
        const QImage dots = picture.toImage();
        for (const std::string_view address :
             {"Form1.Text101(17)", "Form1.Text101(22)", "Form1.Text106(25)", "Form1.Text108(8)"}) {
            const QRect cell = bench.Widget(address).geometry();
            const int middle = qRound(cell.center().x() * scale);
            const int top = qRound(cell.top() * scale);
            EXPECT_EQ(dots.pixel(middle, top), theme::Colours().line) << address << ' ' << scale;
            const int left = qRound(cell.left() * scale);
            EXPECT_EQ(dots.pixel(left, qRound(cell.center().y() * scale)), theme::Colours().line)
                << address << ' ' << scale;
        }
    }
}

TEST(Looks, A_Window_Fits_A_Small_Display) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Click("Main.Command50");
    for (const std::string_view address :
         {"Main.Command51", "Form1.Text104(6)", "Form50.Command1"}) {
        QWidget& window = *bench.Widget(address).window();
        window.resize(700, 400);
        EXPECT_EQ(window.size(), QSize(700, 400)) << address;
    }
    // What is past the edge can be reached: the focus scrolls it into view.
    bench.Tab_To("Form1.Text107(30)");
    const QWidget& last = bench.Widget("Form1.Text107(30)");
    EXPECT_TRUE(
        last.window()->rect().contains(QRect(last.mapTo(last.window(), QPoint()), last.size())));
}

TEST(Looks, Addresses_Are_Told_Only_Where_A_Tool_Asks) {
    qputenv("KESTRUM_ADDRESSES", "1");
    {
        Desktop_Bench bench;
        for (const std::string_view address : {"Main.Text104(3)", "Main.Text105(3)"}) {
            QAccessibleInterface* const field =
                QAccessible::queryAccessibleInterface(&bench.Widget(address));
            EXPECT_EQ(field->text(QAccessible::Description).toStdString(), address);
        }
    }
    qunsetenv("KESTRUM_ADDRESSES");
}

TEST(Looks, The_Tab_Key_Reaches_All_Of_Every_Page) {
    Desktop_Bench bench;
    Session& session = bench.program.Its_Session();
    bench.Open_Sheet();
    bench.Click("Main.Command50");
    session.Show(session.Form60());
    bench.Click("Main.Command33");
    const auto walk = [&bench](std::string_view first) {
        QWidget& start = bench.Widget(first);
        start.window()->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(start.window()));
        start.setFocus(Qt::TabFocusReason);
        std::set<const QWidget*> reached;
        while (reached.insert(QApplication::focusWidget()).second) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (const QWidget* const widget : start.window()->findChildren<QWidget*>()) {
            const bool wanted = widget->isVisible() && widget->isEnabled() &&
                                (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                                widget->objectName().contains(QLatin1Char('.'));
            EXPECT_TRUE(!wanted || reached.contains(widget)) << widget->objectName().toStdString();
        }
    };
    walk("Form1.Text108(7)");
    bench.Click("Form1.NextPage");
    walk("Form1.Text207(17)");
    walk("Form60.Command1");
    walk("Form70.Command2");
    walk("Form50.Option1(0)");
    // Into the second group of options by its chosen one, and on by the arrow keys.
    bench.Tab_To("Form50.Option1(0)");
    bench.Press(Qt::Key_Tab);
    EXPECT_EQ(bench.Focus(), "Form50.Option2(1)");
    bench.Press(Qt::Key_Down);
    EXPECT_EQ(bench.At("Form50.Option2(2)").Value(), 1);
}

TEST(Looks, The_Menus_Check_What_Is_In_Force) {
    Desktop_Bench bench;
    const auto entry = [&bench](const char* name) {
        return bench.Widget("Main.Command51").window()->findChild<QAction*>(QLatin1String(name));
    };
    entry("Main.AligCenter")->trigger();
    entry("Main.Grid_Dot")->trigger();
    EXPECT_FALSE(entry("Main.AligLeft")->isChecked());
    EXPECT_TRUE(entry("Main.AligCenter")->isChecked());
    EXPECT_TRUE(entry("Main.Grid_Dot")->isChecked());
    EXPECT_FALSE(entry("Main.Grid_None")->isChecked());
    EXPECT_FALSE(entry("Main.Preload")->isCheckable());
}

TEST(Looks, Rows_Stay_Aligned_In_Large_Letters_And_On_A_Stretched_Screen) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const auto letters = [&bench](std::string_view address) {
        return bench.Widget(address).font().pixelSize();
    };
    const int before = letters("Form1.Text101(17)");
    bench.program.Its_Gate().Enter([&] {
        for (const std::string_view address :
             {"Form1.Text101(17)", "Form1.Text106(17)", "Main.Text38"}) {
            Look look = bench.At(address).Present_Look();
            look.font = {.name = "DejaVu Sans", .size = 2 * Font().size, .bold = true};
            bench.At(address).Set_Look(look);
        }
    });
    QWidget& large = bench.Widget("Form1.Text101(17)");
    EXPECT_TRUE(large.font().bold());
    EXPECT_TRUE(bench.Widget("Main.Text38").font().bold());
    EXPECT_GT(letters("Main.Text38"), letters("Main.Command51") * 3 / 2);
    EXPECT_GT(letters("Form1.Text101(17)"), before * 3 / 2);
    EXPECT_GE(large.height(), QFontMetrics(large.font()).height());
    for (const char* const address :
         {"Form1.Text106(17)", "Form1.Text107(17)", "Form1.Text112(17)"}) {
        EXPECT_EQ(bench.Widget(address).y(), large.y());
        EXPECT_EQ(bench.Widget(address).height(), large.height());
    }
    // A stretched screen keeps the chosen proportion.
    const int width = large.window()->width();
    bench.program.Its_Gate().Enter([&] {
        Screen& screen = bench.At("Form1.Text101(17)").Owner();
        screen.scale = {.x = 1.5, .y = 1.5, .font = 1.65};
        for (Control& control : screen.Controls()) {
            Look look = control.Present_Look();
            look.font.size *= screen.scale.font;
            control.Set_Look(look);
        }
    });
    EXPECT_GE(large.window()->width(), width);
    EXPECT_NEAR(1.0 * letters("Form1.Text101(17)") / letters("Form1.Text101(18)"), 2, 0.2);
}

} // namespace
} // namespace kestrum::desktop
