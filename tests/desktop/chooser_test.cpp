#include "desktop/desktop_dialogs.h"
#include "desktop/help_line.h"
#include "desktop/program.h"
#include "graph/graph_state.h"
#include "platform/file_store.h"
#include "tests/temp_folder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrum::desktop {
namespace {

/// A user with the real choosers and boxes: one act for each that comes up, in order. What comes
/// up when no act is left is cancelled, so that a test fails instead of waiting for somebody.
class User_At_Dialogs : public QObject {
public:
    using Act = std::function<void(QWidget& dialog)>;

    explicit User_At_Dialogs(std::deque<Act> acts) : acts_(std::move(acts)) {
        constexpr int milliseconds = 10;
        startTimer(milliseconds);
    }

    /// What came up: the name that a chooser proposes, the first line of a box.
    QStringList seen;

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        QWidget* const dialog = QApplication::activeModalWidget();
        // A chooser is in front for a moment while the box before it closes.
        const bool stays = dialog == in_front_;
        in_front_ = dialog;
        if (dialog == nullptr || dialog == last_ || !stays) {
            return;
        }
        last_ = dialog;
        if (auto* const chooser = qobject_cast<QFileDialog*>(dialog)) {
            seen << chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        } else if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
            seen << box->text().section(QLatin1Char('\n'), 0, 0);
        }
        if (acts_.empty()) {
            seen << QStringLiteral("nobody is left");
            QTest::keyClick(dialog, Qt::Key_Escape);
            return;
        }
        // A box may open out of the act, and a timer whose event still runs does not tick for it.
        QTimer::singleShot(0, dialog, [act = std::move(acts_.front()), dialog] { act(*dialog); });
        acts_.pop_front();
    }

private:
    std::deque<Act> acts_;
    QPointer<QWidget> in_front_;
    QPointer<QWidget> last_; // another dialog may stand at its address
};

void Return_Key(QWidget& dialog) {
    QWidget* const holder = dialog.focusWidget();
    QTest::keyClick(holder == nullptr ? &dialog : holder, Qt::Key_Return);
}

/// Types over what is proposed, and presses Return.
User_At_Dialogs::Act Type(const char* name) {
    return [name](QWidget& dialog) {
        QTest::keyClicks(dialog.focusWidget(), QString::fromLatin1(name));
        Return_Key(dialog);
    };
}

User_At_Dialogs::Act Answer(QMessageBox::StandardButton button) {
    return
        [button](QWidget& dialog) { dynamic_cast<QMessageBox&>(dialog).button(button)->click(); };
}

/// Picks an entry of the chooser by its words, and types a name where one is given.
User_At_Dialogs::Act Pick(const char* words, const char* name = nullptr) {
    return [words, name](QWidget& dialog) {
        auto* const entries = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        const int entry = entries->findText(QString::fromLatin1(words), Qt::MatchStartsWith);
        entries->setFocus();
        QTest::keyClick(entries, Qt::Key_Home);
        for (int step = 0; step < entry; ++step) {
            QTest::keyClick(entries, Qt::Key_Down);
        }
        auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        field->setFocus(Qt::TabFocusReason);
        if (name != nullptr) {
            QTest::keyClicks(field, QString::fromLatin1(name));
        }
        Return_Key(dialog);
    };
}

/// The program with the dialogs of its users.
class Choosers : public ::testing::Test {
protected:
    Choosers() : program(dialogs, Around(folder)) {
        EXPECT_TRUE(program.Start());
        session.Show(session.Sheet(1));
        session.Sheet(1).Text102(0).Set_Text("GT40P/2");
    }

    static Surroundings Around(const Temp_Folder& folder) {
        Surroundings around;
        around.folder = folder.Path();
        return around;
    }

    /// Ctrl+S or what else in a screen's window; gives what came up.
    QStringList Press(Screen& screen, Qt::Key key, std::deque<User_At_Dialogs::Act> acts) {
        Screen_Window& window = *program.Its_Windows().Window_Of(screen);
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        User_At_Dialogs user(std::move(acts));
        QTest::keyClick(window.focusWidget(), key, Qt::ControlModifier);
        return user.seen;
    }

    QStringList Save_Sheet(std::deque<User_At_Dialogs::Act> acts) {
        return Press(session.Sheet(1), Qt::Key_S, std::move(acts));
    }

    /// The help line has the words as soon as its window is back from behind the box.
    bool Says(Screen& screen, const std::string& words) {
        Screen_Window& window = *program.Its_Windows().Window_Of(screen);
        window.activateWindow();
        const QWidget& line = window.Its_Help_Line();
        return QTest::qWaitFor([&] { return line.accessibleName().toStdString() == words; });
    }

    static QStringList Lines(std::initializer_list<const char*> lines) {
        QStringList list;
        for (const char* const line : lines) {
            list << QString::fromLatin1(line);
        }
        return list;
    }

    using Files = std::vector<std::string>;

    const Temp_Folder folder;
    Desktop_Dialogs dialogs;
    Program program;
    Session& session = program.Its_Session();
};

TEST_F(Choosers, Propose_The_Part_Number_And_Then_The_Path_Of_The_File) {
    EXPECT_EQ(Save_Sheet({Return_Key, Return_Key}), Lines({"GT40P-2.dat", "124 Records Written"}));
    EXPECT_EQ(folder.Names(), Files{"GT40P-2.dat"});
    EXPECT_TRUE(Says(session.Sheet(1), "Saved to " + folder.File("GT40P-2.dat")));
    session.Sheet(1).Text102(0).Set_Text("another");
    const QStringList again =
        Save_Sheet({Return_Key, Answer(QMessageBox::Yes), Return_Key}); // over the old one
    ASSERT_EQ(again.size(), 3);
    EXPECT_EQ(again[0], QStringLiteral("GT40P-2.dat"));
    EXPECT_TRUE(again[1].contains(QStringLiteral("already exists")));
    EXPECT_NE(folder.Read("GT40P-2.dat").find("Text102_0 = another"), std::string::npos);
}

TEST_F(Choosers, Complete_A_Name_Only_Where_Their_Entry_Is_For_That_Ending) {
    Save_Sheet({Type("first"), Return_Key});
    EXPECT_EQ(folder.Names(), Files{"first.dat"});
    Save_Sheet({Type("second.txt"), Return_Key});
    EXPECT_EQ(folder.Names(), (Files{"first.dat", "second.txt"}));
    Save_Sheet({Pick("All Files", "third"), Return_Key});
    EXPECT_EQ(folder.Names(), (Files{"first.dat", "second.txt", "third"}));
    Press(session.Main(), Qt::Key_S, {Type("engine"), Return_Key});
    EXPECT_TRUE(File_Exists(folder.File("engine.dta")));
}

TEST_F(Choosers, Ask_Again_When_The_Completed_Name_Is_There) {
    Write_Whole_File(folder.File("run.dat"), "old");
    const QStringList refused = Save_Sheet(
        {Type("run"), Answer(QMessageBox::No),
         [](QWidget& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); }, Return_Key});
    ASSERT_GE(refused.size(), 3);
    EXPECT_TRUE(refused[1].contains(QStringLiteral("run.dat already exists")));
    EXPECT_EQ(folder.Read("run.dat"), "old");
    Save_Sheet({Type("run"), Answer(QMessageBox::Yes), Return_Key});
    EXPECT_NE(folder.Read("run.dat"), "old");
}

TEST_F(Choosers, The_Graph_Is_Saved_Under_Its_Part_Numbers_In_The_Format_That_Is_Picked) {
    session.Sheet(2).Text102(0).Set_Text("Stock: 1");
    Graph_Of(session).from_label = "1 - " + session.Sheet(1).Text102(0).Text();
    Graph_Of(session).to_label = "2 - " + session.Sheet(2).Text102(0).Text();
    session.Show(session.Form60());
    Control& save = *session.Form60().Find("Command3", std::nullopt);
    const auto save_graph = [&](std::deque<User_At_Dialogs::Act> acts) {
        User_At_Dialogs user(std::move(acts));
        QWidget* const button =
            program.Its_Windows().Window_Of(session.Form60())->View_Of(save)->Widget();
        QTest::mouseClick(button, Qt::LeftButton);
        return user.seen;
    };
    EXPECT_EQ(save_graph({Return_Key}), Lines({"GT40P-2 and Stock- 1.bmp"}));
    save_graph({Pick("PNG Pictures")});
    save_graph({Pick("SVG Drawings", "curves")});
    save_graph({Type("bare")});
    EXPECT_EQ(folder.Names(), (Files{"GT40P-2 and Stock- 1.bmp", "GT40P-2 and Stock- 1.png", "bare",
                                     "curves.svg"}));
    EXPECT_TRUE(folder.Read("GT40P-2 and Stock- 1.png").starts_with("\x89PNG"));
    EXPECT_TRUE(folder.Read("bare").starts_with("BM")) << "the required entry completes nothing";
    EXPECT_TRUE(Says(session.Form60(), "Saved to " + folder.File("bare")));
}

} // namespace
} // namespace kestrum::desktop
