#include "tests/desktop/typing_child.h"

#include "desktop/desktop_dialogs.h"
#include "desktop/program.h"

#include <QApplication>
#include <QTest>

#include <cstdio>
#include <string_view>

namespace kestrum::desktop {

const char* Folder_Of_Typing_Child(int count, char** values) {
    return count == 3 && std::string_view(values[1]) == "--type-and-wait" ? values[2] : nullptr;
}

int Type_And_Wait(const char* folder) {
    Surroundings around;
    around.folder = folder;
    Desktop_Dialogs dialogs;
    Program program(dialogs, around);
    if (!program.Start()) {
        return 1;
    }
    program.Keep_Rescue_Copies();
    Session& session = program.Its_Session();
    QWidget& field = *program.Its_Windows()
                          .Window_Of(session.Main())
                          ->View_Of(session.Main().Text103(3))
                          ->Widget();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, QStringLiteral("4.1357"));
    std::puts("ready");
    std::fflush(stdout);
    return QApplication::exec();
}

} // namespace kestrum::desktop
