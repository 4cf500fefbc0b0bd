#include "tests/desktop/desktop_bench.h"

#include "desktop/text_bridge.h"

#include <QApplication>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

#include <charconv>
#include <stdexcept>

namespace kestrum::desktop {

namespace {

Surroundings Around(const Temp_Folder& folder) {
    Surroundings around;
    around.folder = folder.Path();
    around.version = "5.0.0";
    return around;
}

} // namespace

Desktop_Bench::Desktop_Bench(bool with_left_settings) : program(dialogs, Around(folder)) {
    if (!with_left_settings) {
        QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("kestrum"),
                  QStringLiteral("desktop"))
            .clear();
    }
    if (!program.Start()) {
        throw std::runtime_error("the program does not start");
    }
    QCoreApplication::processEvents();
}

Desktop_Bench::~Desktop_Bench() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Control& Desktop_Bench::At(std::string_view address) {
    const std::size_t dot = address.find('.');
    const std::size_t bracket = address.find('(');
    std::optional<int> index;
    if (bracket != std::string_view::npos) {
        index.emplace();
        std::from_chars(address.data() + bracket + 1, address.data() + address.size(), *index);
    }
    Screen* const screen = program.Its_Session().Screen_Named(address.substr(0, dot));
    Control* const control =
        screen == nullptr ? nullptr
                          : screen->Find(address.substr(dot + 1, bracket == std::string_view::npos
                                                                     ? bracket
                                                                     : bracket - dot - 1),
                                         index);
    if (control == nullptr) {
        throw std::runtime_error("there is no " + std::string(address));
    }
    return *control;
}

QWidget& Desktop_Bench::Widget(std::string_view address) {
    const Control& control = At(address);
    const Screen_Window* const window = program.Its_Windows().Window_Of(control.Owner());
    Control_View* const view = window == nullptr ? nullptr : window->View_Of(control);
    if (view == nullptr || view->Widget() == nullptr) {
        throw std::runtime_error("nothing shows " + std::string(address));
    }
    return *view->Widget();
}

QLineEdit& Desktop_Bench::Edit(std::string_view address) {
    return dynamic_cast<QLineEdit&>(Widget(address));
}

std::string Desktop_Bench::Text(std::string_view address) {
    return At(address).Text();
}

void Desktop_Bench::Open_Sheet() {
    Click("Main.Command1");
    QWidget* const window = Widget("Form1.Text108(7)").window();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}

void Desktop_Bench::Tab_To(std::string_view address) {
    Widget(address).setFocus(Qt::TabFocusReason);
}

void Desktop_Bench::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Desktop_Bench::Type(const char* keys) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(keys));
}

void Desktop_Bench::Enter(std::string_view address, const char* keys) {
    Tab_To(address);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Type(keys);
}

void Desktop_Bench::Click(std::string_view address) {
    QTest::mouseClick(&Widget(address), Qt::LeftButton);
}

std::string Desktop_Bench::Help(std::string_view screen) {
    return From_Qt(Widget(std::string(screen) + ".Label7").accessibleName());
}

std::string Desktop_Bench::Focus() const {
    const QWidget* const holder = QApplication::focusWidget();
    return holder == nullptr ? "nothing" : From_Qt(holder->objectName());
}

} // namespace kestrum::desktop
