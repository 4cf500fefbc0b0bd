#include "desktop/desktop_windows.h"

#include "desktop/help_line.h"
#include "screens/screen.h"

#include <QApplication>
#include <QTimer>

namespace kestrum::desktop {

Desktop_Windows::~Desktop_Windows() {
    for (const auto& [screen, window] : windows_) {
        delete window;
    }
}

Screen_Window* Desktop_Windows::Window_Of(const Screen& screen) const {
    const auto found = windows_.find(&screen);
    return found == windows_.end() ? nullptr : found->second;
}

void Desktop_Windows::Show(Screen& screen) {
    Screen_Window*& window = windows_[&screen];
    if (window == nullptr) {
        window = new Screen_Window(*session_, gate_, screen);
        if (on_new_window) {
            on_new_window(*window, screen);
        }
    }
    window->Refresh();
    window->Open();
}

void Desktop_Windows::Raise(Screen& screen) {
    if (Screen_Window* const window = Window_Of(screen)) {
        window->Bring_To_Front();
    }
}

void Desktop_Windows::Show_Behind(Screen& screen) {
    QWidget* const front = QApplication::activeWindow();
    if (Screen_Window* const window = Window_Of(screen)) {
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->show();
        window->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
    if (front != nullptr) {
        front->raise();
    }
}

void Desktop_Windows::Say(const QString& words) const {
    const QWidget* front = QApplication::activeWindow();
    if (front == nullptr && !windows_.empty()) { // a box has closed, and its window comes back soon
        constexpr int milliseconds = 100;
        QTimer::singleShot(milliseconds, windows_.begin()->second, [this, words] { Say(words); });
        return;
    }
    while (front != nullptr && front->parentWidget() != nullptr) {
        front = front->parentWidget(); // a preview belongs to the window that it came from
    }
    for (const auto& [screen, window] : windows_) {
        if (window == front) {
            window->Its_Help_Line().Say(words);
        }
    }
}

void Desktop_Windows::Hide(Screen& screen) {
    if (Screen_Window* const window = Window_Of(screen)) {
        window->Close();
    }
}

void Desktop_Windows::Unload(Screen& screen) {
    const auto found = windows_.find(&screen);
    if (found != windows_.end()) {
        found->second->Let_Go();
        windows_.erase(found);
    }
    if (screen.Kind() == Screen_Kind::Engine && on_end) {
        on_end();
    }
}

void Desktop_Windows::Focus(Control& control) {
    if (Screen_Window* const window = Window_Of(control.Owner())) {
        window->Take_Focus(control);
    }
}

void Desktop_Windows::Refresh() {
    for (const auto& [screen, window] : windows_) {
        window->Refresh();
    }
}

} // namespace kestrum::desktop
