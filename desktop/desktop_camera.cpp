#include "desktop/desktop_camera.h"

#include "base/run_time_error.h"

#include <QBuffer>
#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

namespace kestrum::desktop {

namespace {

bool Screen_Can_Be_Seen() {
    return QGuiApplication::platformName() == QLatin1String("xcb") ||
           QGuiApplication::platformName() == QLatin1String("windows") ||
           QGuiApplication::platformName() == QLatin1String("cocoa");
}

/// Another window has just been hidden; what lay behind it must have been painted.
void Let_Screen_Settle() {
    constexpr int milliseconds = 250;
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

QPixmap Picture_From_Screen(const QWidget& window) {
    Let_Screen_Settle();
    const QRect area = window.frameGeometry();
    QScreen& screen = *window.screen();
    const QPoint corner = area.topLeft() - screen.geometry().topLeft();
    return screen.grabWindow(0, corner.x(), corner.y(), area.width(), area.height());
}

/// The system's own pointer is nobody's to look at, so the usual arrow stands for it. It lies at
/// its place on the screen, which is its place in the picture for a window in the screen's corner.
void Paint_Pointer(QPixmap& picture) {
    static const QPolygonF arrow{{0, 0},      {0, 16},   {3.7, 12.6}, {6.1, 18.2},
                                 {8.4, 17.2}, {6, 11.7}, {11, 11.6}};
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QCursor::pos());
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::white);
    painter.drawPolygon(arrow);
}

} // namespace

std::string Desktop_Camera::Picture_Of(const Screen_Shot& shot) {
    QWidget* const window = window_of_(shot.screen);
    if (window == nullptr) {
        Fail(error::invalid_picture);
    }
    QPixmap picture;
    if (Screen_Can_Be_Seen()) {
        picture = Picture_From_Screen(*window);
    }
    if (picture.isNull()) {
        picture = window->grab();
    }
    if (shot.with_cursor) {
        Paint_Pointer(picture);
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "JPG", shot.quality)) {
        Fail(error::invalid_picture);
    }
    return bytes.toStdString();
}

} // namespace kestrum::desktop
