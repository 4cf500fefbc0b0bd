#include "desktop/chart_window.h"
#include "desktop/desktop_printers.h"
#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

Chart_Test Head_Named(const char* name, double flow) {
    Test_Figures figures;
    figures.name = name;
    figures.intake.points[0] = {{.lift = .1, .value = flow / 2}, {.lift = .3, .value = flow}};
    figures.exhaust.points[0] = figures.intake.points[0];
    return {.file = name, .figures = figures};
}

/// A chart of three heads with real widgets, mouse and keys.
class Chart_On_Screen : public ::testing::Test {
protected:
    Chart_On_Screen() {
        window.show();
        QApplication::processEvents();
    }

    template <typename Kind>
    Kind& Set(const char* name) {
        for (Kind* const box : window.findChildren<Kind*>()) {
            if (box->accessibleName() == QString::fromUtf8(name)) {
                return *box;
            }
        }
        throw std::runtime_error(name);
    }

    [[nodiscard]] const Chart_Layout& Layout() const { return window.View().Layout(); }

    [[nodiscard]] QPoint At(double lift, double value) const {
        return (QPointF(Layout().main.X(lift), Layout().main.Y(value)) * window.View().Scale())
            .toPoint();
    }

    void Wheel(QPoint place, Qt::KeyboardModifiers keys) {
        QWheelEvent event(place, View().mapToGlobal(place), {}, {0, 240}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&View(), &event);
    }

    void Move(QPoint place, Qt::MouseButtons buttons = {}) {
        QMouseEvent event(QEvent::MouseMove, place, View().mapToGlobal(place), Qt::NoButton,
                          buttons, {});
        QApplication::sendEvent(&View(), &event);
    }

    [[nodiscard]] QWidget& View() const { return window.View(); }

    std::string Copied() {
        QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().toStdString();
    }

    Desktop_Bench bench;
    Chart_Window window{
        bench.program.Its_Session(),
        {Head_Named("stock", 100), Head_Named("ported", 120), Head_Named("welded", 90)}};
};

TEST_F(Chart_On_Screen, Reads_Where_The_Mouse_Is_And_Snaps_To_Measured_Lifts) {
    Move(At(.2, 60));
    ASSERT_TRUE(window.View().Reading());
    EXPECT_NEAR(*window.View().Reading(), .2, .002);
    Move(At(.1, 60) + QPoint(2, 0));
    EXPECT_EQ(window.View().Reading(), .1);
    Move({2, 2});
    EXPECT_FALSE(window.View().Reading());
    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_NEAR(window.View().Reading().value_or(0), .3 / 60, 1e-9);
    EXPECT_TRUE(View().accessibleDescription().contains(QStringLiteral("2 ported")));
}

TEST_F(Chart_On_Screen, Goes_Larger_Moves_And_Comes_Back) {
    const Chart_Part whole = Layout().Part();
    Wheel(At(.1, 60), Qt::ShiftModifier); // lifts alone
    EXPECT_NEAR(Layout().Part().last_lift - Layout().Part().first_lift, .3 / 1.44, 1e-9);
    EXPECT_EQ(Layout().Part().high, whole.high);
    Wheel(At(.1, 60), Qt::NoModifier);
    EXPECT_LT(Layout().Part().high - Layout().Part().low, whole.high - whole.low);

    const Chart_Part before = Layout().Part();
    const QPoint grip = At(before.first_lift + .05, before.low + 20);
    QTest::mousePress(&View(), Qt::LeftButton, {}, grip);
    Move(grip - QPoint(40, 0), Qt::LeftButton);
    EXPECT_GT(Layout().Part().first_lift, before.first_lift); // dragged to the left
    EXPECT_EQ(Layout().Part().low, before.low);

    // What leaves the axes leaves the part; another quantity begins anew.
    Set<QComboBox>("Gain in").setCurrentIndex(1);
    EXPECT_NE(Layout().Part(), whole);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, grip);
    EXPECT_EQ(Layout().Part(), whole);
    QTest::keyClick(&View(), Qt::Key_Plus);
    EXPECT_NE(Layout().Part(), whole);
    Set<QComboBox>("Lift in").setCurrentIndex(2);
    EXPECT_EQ(Layout().Part().first_lift, 0);
    EXPECT_EQ(Layout().Part(), Layout().whole);
}

TEST_F(Chart_On_Screen, Settings_Change_Chart_And_Tables_At_Once) {
    Set<QDoubleSpinBox>("Cam lift").setValue(.25);
    Set<QComboBox>("Lift in").setCurrentIndex(2);
    EXPECT_EQ(Set<QDoubleSpinBox>("Cam lift").value(), 6.35); // the same lift
    Set<QComboBox>("Lift in").setCurrentIndex(1);
    Set<QComboBox>("Flow in").setCurrentIndex(2);
    Set<QComboBox>("Sides").setCurrentIndex(1);
    Set<QComboBox>("Baseline").setCurrentIndex(1);
    Set<QDoubleSpinBox>("At in. H\u2082O").setValue(7);
    Set<QDoubleSpinBox>("Table step").setValue(300);
    // Half the flow at a quarter of the pressure: 120 cfm / 2 x 0.4719474
    const std::string both = Copied();
    EXPECT_NE(both.find("Lift thou\t1 stock l/s\t1 stock gain\t1 stock gain %\t2 ported l/s\t"
                        "3 welded l/s\t3 welded gain\t3 welded gain %\n"
                        "300\t23.6\t-4.7\t-16.7\t28.3\t21.2\t-7.1\t-25.0\n"),
              std::string::npos)
        << both;
    EXPECT_NE(both.find("Intake event l/s"), std::string::npos);

    auto& lifts = Set<QTableWidget>("At equal lifts");
    window.findChild<QTabWidget*>()->setCurrentWidget(&lifts);
    lifts.setFocus();
    lifts.setRangeSelected({0, 0, 0, 1}, true);
    EXPECT_EQ(Copied(), "Lift thou\t1 stock l/s\n300\t23.6\n");
}

TEST_F(Chart_On_Screen, Opens_The_Next_Time_As_The_User_Has_Left_It) {
    auto& quantity = Set<QComboBox>("Quantity");
    quantity.setFocus();
    QTest::keyClick(&quantity, Qt::Key_Down);
    auto& flow = Set<QComboBox>("Flow in");
    flow.setFocus();
    QTest::keyClick(&flow, Qt::Key_Down);
    Set<QDoubleSpinBox>("At in. H\u2082O").setValue(10);
    Set<QDoubleSpinBox>("Cam lift").setValue(.25);
    window.resize(713, 541);
    window.hide();
    const auto next = [](bool metric) {
        const Chart_Settings settings(nullptr, {QStringLiteral("a")}, metric);
        return settings.Request();
    };
    EXPECT_EQ(next(false).quantity, static_cast<Chart_Quantity>(1));
    EXPECT_EQ(next(false).flow_unit, static_cast<Flow_Unit>(1));
    EXPECT_EQ(next(false).pressure, 10);
    EXPECT_FALSE(next(false).cam_lift) << "it is that of a head";
    EXPECT_EQ(next(true).flow_unit, Flow_Unit::Cubic_Metres);
    EXPECT_EQ(next(true).lift_unit, Lift_Unit::Millimetre);
    const auto head = [&] { return std::vector{Head_Named("stock", 100)}; };
    QSize left;
    {
        Chart_Window again(bench.program.Its_Session(), head());
        EXPECT_EQ(again.size(), window.size());
        again.show();
        again.resize(again.width(), 555);
        left = again.size();
    } // as at the program's end
    EXPECT_EQ(Chart_Window(bench.program.Its_Session(), head()).size(), left);
}

/// The page goes to the preview with the shop's name; a drawing of paper is white.
TEST_F(Chart_On_Screen, Prints_The_Page_By_Way_Of_The_Preview) {
    auto& printers = dynamic_cast<Desktop_Printers&>(*bench.program.Its_Session().printers);
    std::string pdf;
    printers.show_preview = [&pdf](Desktop_Printers&, const std::string&, const Printable& page) {
        pdf = Pdf_Bytes(page, Paper_Size::Letter);
    };
    for (QPushButton* const button : window.findChildren<QPushButton*>()) {
        if (button->text() == QStringLiteral("P&rint...")) {
            button->click();
        }
    }
    EXPECT_EQ(pdf.substr(0, 4), "%PDF");
}

} // namespace
} // namespace kestrum::desktop
