#include "desktop/desktop_printers.h"

#include "desktop/text_bridge.h"
#include "platform/run_time_error.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace kestrum::desktop {

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
    QPrinter printer(QPrinterInfo::printerInfo(To_Qt(device)), QPrinter::HighResolution);
    const QPixmap window = picture_of_(picture.screen);
    QPainter painter;
    if (window.isNull() || !painter.begin(&printer)) {
        Fail(error::printer_error);
    }
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const QSizeF size = QSizeF(window.size()).scaled(page.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(QPointF(), size), window, QRectF(window.rect()));
}

} // namespace kestrum::desktop
