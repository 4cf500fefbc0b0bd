#include "desktop/window_place.h"

#include "desktop/user_settings.h"

#include <QGuiApplication>
#include <QScreen>

namespace kestrum::desktop {

bool Take_Kept_Place(QWidget& window) {
    const auto kept = user_settings::Kept_Place(window.objectName());
    if (!kept) {
        return false;
    }
    QList<QRect> displays;
    for (const QScreen* const display : QGuiApplication::screens()) {
        const QRect area = display->availableGeometry();
        displays += QRect(area.topLeft(), area.size() - window_frame);
    }
    const QRect area = user_settings::Brought_Back(kept->area, displays);
    window.resize(area.size());
    window.move(area.topLeft());
    if (kept->maximized) {
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
    return true;
}

void Take_Kept_Size(QWidget& window) {
    if (const auto kept = user_settings::Kept_Place(window.objectName())) {
        window.resize(kept->area.size().boundedTo(window.screen()->availableSize() - window_frame));
    }
}

void Keep_Place_Of(const QWidget& window) {
    if (window.isMinimized()) {
        return;
    }
    const bool maximized = window.isMaximized();
    const QSize size = maximized ? window.normalGeometry().size() : window.size();
    user_settings::Keep_Place(window.objectName(),
                              {.area = QRect(window.pos(), size), .maximized = maximized});
}

} // namespace kestrum::desktop
