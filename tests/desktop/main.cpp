#include "desktop/safe_application.h"
#include "desktop/text_access.h"
#include "desktop/theme_style.h"
#include "tests/desktop/typing_child.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QTemporaryDir settings; // never those of who runs the tests
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    testing::InitGoogleTest(&count, values);
    const kestrum::desktop::Safe_Application application(count, values);
    QApplication::setQuitOnLastWindowClosed(false);
    kestrum::desktop::Apply_Theme();
    kestrum::desktop::Install_Text_Access();
    if (const char* const folder = kestrum::desktop::Folder_Of_Typing_Child(count, values)) {
        return kestrum::desktop::Type_And_Wait(folder);
    }
    return RUN_ALL_TESTS();
}
