#include "desktop/text_bridge.h"
#include "files/kept_tests.h"
#include "tests/desktop/desktop_bench.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kestrum::desktop {
namespace {

/// Notes which widgets are painted.
class Paint_Watch : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->objectName().contains(QLatin1Char('.'))) {
            painted.insert(From_Qt(object->objectName()));
        }
        return false;
    }

    std::set<std::string> painted;
};

std::map<std::string, std::string> Texts_Of(const Screen& screen) {
    std::map<std::string, std::string> texts;
    for (const Control& control : screen.Controls()) {
        if (control.Is_Text_Box()) {
            texts[control.Address()] = control.Text();
        }
    }
    return texts;
}

TEST(Windows, A_Calculation_Paints_Only_The_Cells_That_Changed) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text106(17)", "36");
    bench.Tab_To("Form1.Command1");
    QTest::qWait(20);
    const auto before = Texts_Of(bench.program.Its_Session().Sheet(1));
    Paint_Watch watch;
    qApp->installEventFilter(&watch);
    bench.Press(Qt::Key_Space);
    QTest::qWait(20);
    qApp->removeEventFilter(&watch);
    std::set<std::string> expected{"Form1.Command1"}; // shows that it is pressed
    for (const auto& [address, text] : Texts_Of(bench.program.Its_Session().Sheet(1))) {
        const bool on_page_1 = address.find("Text1") != std::string::npos;
        const bool is_result = bench.At(address).Entry().use == Cell_Use::Result;
        const bool grows_young =
            on_page_1 && is_result && !bench.Widget(address).visibleRegion().isEmpty();
        if (on_page_1 && (grows_young || before.at(address) != text)) {
            expected.insert(address);
        }
    }
    EXPECT_GT(expected.size(), 5U);
    EXPECT_EQ(watch.painted, expected);
}

TEST(Windows, Every_Menu_Entry_Works_And_The_Choice_In_Force_Is_Marked) {
    Desktop_Bench bench;
    QWidget* const main = bench.Widget("Main.Command51").window();
    const auto entry = [main](const char* name) -> QAction& {
        return *main->findChild<QAction*>(QString::fromLatin1(name));
    };
    for (const QAction* const action : main->findChildren<QAction*>()) {
        if (action->objectName().startsWith(QStringLiteral("Main."))) {
            EXPECT_TRUE(action->isEnabled()) << action->objectName().toStdString();
        }
    }
    EXPECT_TRUE(entry("Main.AligLeft").isChecked());
    for (int time = 0; time < 2; ++time) {
        entry("Main.AligCenter").trigger();
        EXPECT_TRUE(entry("Main.AligCenter").isChecked()) << "also when it is chosen again";
        EXPECT_FALSE(entry("Main.AligLeft").isChecked());
    }
}

TEST(Windows, Choices_That_Are_Pure_State_Work) {
    Desktop_Bench bench;
    bench.Click("Main.Command50");
    bench.Click("Form50.Option3(7)");
    bench.Click("Form50.Check3");
    EXPECT_EQ(bench.At("Form50.Option3(7)").Value(), 1);
    EXPECT_EQ(bench.At("Form50.Option3(0)").Value(), 0);
    EXPECT_EQ(bench.At("Form50.Check3").Value(), 1);
}

TEST(Windows, A_Screen_Reader_Chooses_As_The_Mouse_Does) {
    Desktop_Bench bench;
    bench.Click("Main.Command50");
    for (const char* const address : {"Form50.Option3(9)", "Form50.Check2"}) {
        QAccessibleInterface* const button =
            QAccessible::queryAccessibleInterface(&bench.Widget(address));
        button->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(bench.At(address).Value(), 1) << address;
    }
    EXPECT_EQ(bench.At("Form50.Option3(0)").Value(), 0);
    EXPECT_TRUE(bench.program.Its_Session().settings.auto_x_lines);
}

TEST(Windows, A_Test_Is_Saved_And_Loaded_Through_The_Choosers) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const std::string path = bench.folder.File("bench.dat");
    bench.Enter("Form1.Text102(0)", "GT40P");
    bench.dialogs.Choose(path);
    bench.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(bench.Take_Events(), (Events{"chooser to save", "plain box: 124 Records Written"}));
    bench.Enter("Form1.Text102(0)", "other");
    bench.dialogs.Choose(path);
    bench.Press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(bench.Edit("Form1.Text102(0)").text(), QStringLiteral("GT40P"));
    EXPECT_EQ(bench.Text("Form1.Text39"), path);
    EXPECT_EQ(bench.Focus(), "Form1.Text101(16)");
    EXPECT_EQ(bench.Take_Events(), (Events{"chooser to open", "plain box: 124 Records Read"}));
}

TEST(Windows, The_Frame_Of_A_Sheet_Unloads_It_And_Quit_Does_Not) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    bench.Press(Qt::Key_W, Qt::ControlModifier);
    bench.Open_Sheet();
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "mine");
    bench.Widget("Form1.Text102(0)").window()->close();
    bench.Open_Sheet();
    EXPECT_EQ(bench.Edit("Form1.Text102(0)").text(), QStringLiteral("E7TE"));
}

TEST(Windows, That_Are_Closed_Stay_So_When_The_Screens_Are_Stretched) {
    Desktop_Bench bench;
    Session& session = bench.program.Its_Session();
    bench.program.Its_Gate().Enter([&session] { session.Show(session.Form50()); });
    QWidget& window = *bench.Widget("Form50.subend").window();
    bench.Click("Form50.subend");
    EXPECT_FALSE(window.isVisible());
    bench.program.Its_Gate().Enter([&session] { session.Form50().scale = {1.5, 1.5, 1.65}; });
    EXPECT_FALSE(window.isVisible());
}

TEST(Windows, The_Frame_Of_Main_Ends_The_Session) {
    Desktop_Bench bench;
    bench.program.Keep_Rescue_Copies();
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    bench.program.Write_Rescue_Copies();
    EXPECT_NE(bench.folder.Read("rescue/Form1.dat").find("mine"), std::string::npos);
    bench.Widget("Main.Command51").window()->close();
    EXPECT_FALSE(bench.program.Its_Session().Is_Loaded("Main"));
    EXPECT_EQ(bench.folder.Names(), (std::vector<std::string>{"kept-tests", "zxqw1234.sav"}));
    EXPECT_NE(bench.folder.Read("kept-tests/last-1.dat").find("mine"), std::string::npos)
        << "the sheet that was worked on can be brought back";
    EXPECT_EQ(bench.program.Exit_Status(), 0);
}

TEST(Windows, What_Comes_Back_Has_The_Title_That_It_Was_Opened_With) {
    Desktop_Bench bench;
    Session& session = bench.program.Its_Session();
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    const QString title = bench.Widget("Form1.Text102(0)").window()->windowTitle();
    Keep_Last_Session(session);
    session.Unload(session.Sheet(1));
    bench.Widget("Main.Command51")
        .window()
        ->findChild<QAction*>(QStringLiteral("Main.File.BringBackLastSession'sTests"))
        ->trigger();
    EXPECT_EQ(bench.Widget("Form1.Text102(0)").window()->windowTitle(), title);
}

TEST(Windows, Rescue_Copies_Show_The_State_Before_A_Command_That_Failed) {
    Desktop_Bench bench;
    bench.program.Keep_Rescue_Copies();
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    bench.At("Form4.Text102(8)").Set_Text("none"); // the switch of the units fails half way
    bench.Click("Main.Check2");
    EXPECT_EQ(bench.Take_Events().size(), 1U) << "the failure is told";
    bench.program.Write_Rescue_Copies();
    const std::string copy = bench.folder.Read("rescue/Form1.dat");
    EXPECT_NE(copy.find("Text102_0 = mine\r\n"), std::string::npos) << copy;
    EXPECT_NE(copy.find("Text102_8 = 5.37\r\n"), std::string::npos) << copy;
}

TEST(Windows, The_Help_Line_Shows_What_The_Mouse_Is_Over) {
    Desktop_Bench bench;
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&bench.Widget("Main.Command51"), &enter);
    EXPECT_EQ(bench.Widget("Main.Label7").accessibleName(),
              QStringLiteral("Lets you Calculate the above Data."));
    QApplication::sendEvent(&bench.Widget("Main.Text104(3)"), &enter);
    EXPECT_EQ(bench.Widget("Main.Label7").accessibleName(), QString());
}

struct Named {
    const char* address;
    const char* words;
};

TEST(Windows, Every_Field_Is_Called_What_The_Trade_Calls_It) {
    const std::vector<Named> cases{
        {"Form1.Text104(6)", "Throat dia Ex"},
        {"Form1.Text106(17)", "Observed Flow Intake, lift 50"},
        {"Form1.Text102(4)", "Stem Dia, Intake"},
        {"Form1.Text104(2)", "Mean area, Exhaust"},
        {"Form1.Text103(9)", "0.25D In./Ex, Exhaust"},
        {"Form1.Text107(4)", "Area Ratio Intake"},
        {"Form1.Text108(7)", "Test Pressure"},
        {"Form1.Text113(12)", "Existing In/Ex Rat 2"},
        {"Form1.Text101(18)", "Actual Valve Lift Inch, line 3"},
        {"Form1.Text207(18)", "Swirl, lift 100"},
        {"Form1.Text39", "File: "},
        {"Main.Check1", "User Mach #"},
        {"Main.Check3", "User Peak HP RPM"},
        {"Main.Text103(8)", "CFM @ Peak Lift"},
        {"Main.Text102(9)", "Port cc's"},
        {"Main.Text33", "Name of test"},
        {"Form50.Text102(17)", "Test 1 - E7TE, Mean Port Vel In., lift 50"},
        {"Form50.Text105(17)", "Test 2 - E7TE, Mean Port Vel Ex., lift 60"},
        {"Form50.Text107(17)", "Test 1 - E7TE, Intake, line 2"},
        {"Form50.Text110(17)", "Test 2 - E7TE, Ft-lbs, Exhaust, line 2"},
    };
    Desktop_Bench bench;
    bench.Open_Sheet();
    bench.Click("Form1.NextPage");
    bench.Click("Main.Command2");
    bench.At("Form2.Text101(17)").Set_Text("60");
    bench.At("Form2.Text108(17)").Set_Text("60");
    bench.Click("Form2.Command1");
    bench.Click("Main.Command50");
    bench.Click("Form50.Option3(3)"); // its energies have no word for the side in their headings
    bench.Click("Form50.Command1");
    for (const Named& line : cases) {
        QAccessibleInterface* const field =
            QAccessible::queryAccessibleInterface(&bench.Widget(line.address));
        ASSERT_NE(field, nullptr) << line.address;
        EXPECT_EQ(From_Qt(field->text(QAccessible::Name)), line.words);
        EXPECT_EQ(From_Qt(field->text(QAccessible::Description)).find("Form"), std::string::npos);
        if (bench.At(line.address).Is_Text_Box()) {
            EXPECT_EQ(From_Qt(field->text(QAccessible::Value)), bench.Text(line.address));
        }
    }
}

} // namespace
} // namespace kestrum::desktop
