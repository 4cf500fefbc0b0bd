#include "desktop/desktop_dialogs.h"
#include "desktop/program.h"
#include "tests/temp_folder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrum::desktop {
namespace {

/// A user at the chooser and at the box behind it, who types a name and presses Return.
class Keys_For_Dialogs : public QObject {
public:
    explicit Keys_For_Dialogs(const QString& name) : name_(name) {
        constexpr int milliseconds = 30;
        startTimer(milliseconds);
    }

    QStringList seen;

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == last_) {
            return;
        }
        last_ = dialog;
        if (auto* const chooser = qobject_cast<QFileDialog*>(dialog)) {
            seen << QStringLiteral("chooser ") + chooser->windowTitle();
            QWidget* const field = chooser->focusWidget();
            QTest::keyClicks(field, name_);
            QTest::keyClick(field, Qt::Key_Return);
        } else if (auto* const box = qobject_cast<QMessageBox*>(dialog)) {
            seen << box->text().section(QLatin1Char('\n'), 0, 0);
            if (QAbstractButton* const yes = box->button(QMessageBox::Yes)) {
                yes->click();
                return;
            }
            QTest::keyClick(box, Qt::Key_Return);
        }
    }

private:
    QString name_;
    QPointer<QWidget> last_; // another dialog may stand at its address
};

TEST(Chooser, A_Test_Is_Saved_With_The_Keys_Of_The_Real_Chooser) {
    const Temp_Folder folder;
    Surroundings around;
    around.folder = folder.Path();
    Desktop_Dialogs dialogs;
    Program program(dialogs, around);
    ASSERT_TRUE(program.Start());
    Session& session = program.Its_Session();
    session.Show(session.Sheet(1));
    Screen_Window& window = *program.Its_Windows().Window_Of(session.Sheet(1));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    session.Sheet(1).Text102(0).Set_Text("GT40P");
    Keys_For_Dialogs user(QStringLiteral("by hand.dat"));
    QTest::keyClick(window.focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(user.seen,
              (QStringList{QStringLiteral("chooser Save"), QStringLiteral("124 Records Written")}));
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"by hand.dat"});
    EXPECT_NE(folder.Read("by hand.dat").find("Text102_0 = GT40P"), std::string::npos);
}

} // namespace
} // namespace kestrum::desktop
