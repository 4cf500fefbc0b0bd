#include "graph/graph_state.h"
#include "tests/desktop/desktop_bench.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <stdexcept>

namespace kestrum::desktop {
namespace {

std::map<std::string, Control_State> States_Of(Session& session) {
    std::map<std::string, Control_State> states;
    session.For_Each_Loaded([&states](Screen& screen) {
        for (const Control& control : screen.Controls()) {
            states[control.Address()] = control.Present_State();
        }
    });
    return states;
}

struct Failing {
    const char* address;
    const char* button;
    const char* cell;
};

TEST(Failure, Is_Told_With_Its_Cell_And_Leaves_Everything_As_It_Was) {
    for (const Failing& line :
         {Failing{"Form1.Text106(18)", "Main.Check2",
                  "Flow Test 1, Observed Flow Intake, lift 100"},
          Failing{"Form1.Text101(19)", "Main.Check2",
                  "Flow Test 1, Actual Valve Lift Inch, line 4"},
          Failing{"Form1.Text106(6)", "Form1.Command1", "Flow Test 1, # Int Valves"},
          Failing{"Main.Text103(8)", "Main.Command51", "Main, CFM @ Peak Lift"}}) {
        SCOPED_TRACE(line.cell);
        Desktop_Bench bench;
        bench.Open_Sheet();
        bench.At(line.address).Set_Text("");
        bench.program.Its_Windows().Refresh();
        const auto before = States_Of(bench.program.Its_Session());
        bench.Click(line.button);
        EXPECT_EQ(bench.Take_Events(),
                  Events{"stop box: Run-time error '13':\r\n\r\nType mismatch\r\n\r\nThe cell that "
                         "was being read:\r\n" +
                         std::string(line.cell) + "\r\n\r\nNothing on the screens was changed."});
        EXPECT_EQ(States_Of(bench.program.Its_Session()), before);
        EXPECT_FALSE(dynamic_cast<QCheckBox&>(bench.Widget("Main.Check2")).isChecked());
        EXPECT_EQ(bench.Edit("Form1.Text106(17)").text(), QStringLiteral("35.8"));
        EXPECT_EQ(bench.program.Exit_Status(), 0);
        bench.At(line.address).Set_Text("1"); // mended, and the program goes on
        bench.Click("Main.Command51");
        EXPECT_EQ(bench.Take_Events(), Events{});
    }
}

TEST(Failure, A_Screen_That_A_Failing_Command_Has_Made_Goes_With_It) {
    Desktop_Bench bench;
    Session& session = bench.program.Its_Session();
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    session.Unload(session.Sheet(5));
    bench.program.Its_Gate().Enter_Command([&session] {
        session.Unload(session.Sheet(1));
        session.Show(session.Sheet(5));
        throw std::runtime_error("no room");
    });
    EXPECT_EQ(bench.Take_Events(),
              Events{"stop box: no room\r\n\r\nNothing on the screens was changed."});
    EXPECT_FALSE(session.Is_Loaded("Form5"));
    EXPECT_TRUE(bench.Widget("Form1.Text102(0)").isVisible());
    EXPECT_EQ(bench.Edit("Form1.Text102(0)").text(), QStringLiteral("mine"));
}

TEST(Failure, A_Picture_That_Cannot_Be_Painted_Is_Told_Once) {
    Desktop_Bench bench;
    Session& session = bench.program.Its_Session();
    session.Show(session.Form60());
    QCoreApplication::processEvents();
    QWidget& canvas = bench.Widget("Form60.Picture1");
    Graph_Of(session).canvas.Line(0, 0, 99, 99, 0, 1, static_cast<Line_Style>(7));
    static int complaints; // of the toolkit
    complaints = 0;
    const auto usual = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) { ++complaints; });
    for (int times = 0; times < 3; ++times) {
        canvas.repaint();
        QTest::qWait(20);
    }
    qInstallMessageHandler(usual);
    EXPECT_EQ(complaints, 0) << "a painter is left as it was";
    const Events told = bench.Take_Events();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told.front().starts_with("stop box: "));
    Graph_Of(session).canvas.Clear();
    canvas.repaint();
    EXPECT_EQ(canvas.grab().toImage().pixelColor(50, 50), QColor(Qt::white));
    EXPECT_EQ(bench.Take_Events(), Events{});
}

TEST(Failure, No_Timer_And_No_Paint_Event_Ends_The_Program) {
    class Bad_Widget : public QWidget {
    protected:
        void paintEvent(QPaintEvent* /*event*/) override { throw std::runtime_error("bad paint"); }
    };

    Desktop_Bench bench;
    Bad_Widget widget;
    widget.show();
    QTimer::singleShot(0, [] { throw std::runtime_error("bad timer"); });
    QTest::qWait(50);
    Events told = bench.Take_Events();
    std::ranges::sort(told);
    EXPECT_EQ(told, (Events{"stop box: bad paint", "stop box: bad timer"}));
}

} // namespace
} // namespace kestrum::desktop
