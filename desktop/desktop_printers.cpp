#include "desktop/desktop_printers.h"

#include "desktop/text_bridge.h"
#include "platform/run_time_error.h"

#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>

namespace kestrum::desktop {

namespace {

/// Painted anew, several times as fine as on the display.
QPixmap Picture_Of(QWidget& window) {
    constexpr int dots = 3; // on paper for one of the display
    QPixmap picture(window.size() * dots);
    picture.setDevicePixelRatio(dots);
    window.render(&picture);
    return picture;
}

} // namespace

std::vector<std::string> Desktop_Printers::Devices() const {
    std::vector<std::string> names;
    const QString usual = QPrinterInfo::defaultPrinterName();
    if (!usual.isEmpty()) {
        names.push_back(From_Qt(usual));
    }
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        if (name != usual) {
            names.push_back(From_Qt(name));
        }
    }
    return names;
}

void Desktop_Printers::Print_Screen(const std::string& device, const Screen_Picture& picture) {
    QWidget* const window = window_of_(picture.screen);
    QPrinter printer(QPrinterInfo::printerInfo(To_Qt(device)), QPrinter::HighResolution);
    QPainter painter;
    if (window == nullptr) {
        Fail(error::printer_error);
    }
    printer.setPageOrientation(window->width() > window->height() ? QPageLayout::Landscape
                                                                  : QPageLayout::Portrait);
    if (!painter.begin(&printer)) {
        Fail(error::printer_error);
    }
    const QPixmap window_picture = Picture_Of(*window);
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const QSizeF size = QSizeF(window->size()).scaled(page.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(QPointF(), size), window_picture, QRectF(window_picture.rect()));
}

} // namespace kestrum::desktop
