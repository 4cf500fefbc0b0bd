#include "desktop/text_access.h"
#include "desktop/theme_style.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&count, values);
    const QApplication application(count, values);
    QApplication::setQuitOnLastWindowClosed(false);
    kestrum::desktop::Apply_Theme();
    kestrum::desktop::Install_Text_Access();
    return RUN_ALL_TESTS();
}
