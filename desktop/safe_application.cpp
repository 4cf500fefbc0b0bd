#include "desktop/safe_application.h"

#include <exception>

namespace kestrum::desktop {

bool Safe_Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        if (on_fault) {
            on_fault(fault.what());
        }
    }
    return true;
}

Safe_Application* Safe_Application::Present() {
    return dynamic_cast<Safe_Application*>(QCoreApplication::instance());
}

} // namespace kestrum::desktop
