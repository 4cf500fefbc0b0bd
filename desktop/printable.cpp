#include "desktop/printable.h"

#include "base/run_time_error.h"
#include "desktop/text_bridge.h"
#include "painting/page_painter.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>

namespace kestrum::desktop {

namespace {

bool Paint_Picture_On(const QPixmap& picture, QPagedPaintDevice& device) {
    constexpr double points_in_inch = 72;
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const QSizeF room = device.pageLayout().paintRect(QPageLayout::Point).size() *
                        (device.logicalDpiX() / points_in_inch);
    const QSizeF size = QSizeF(picture.size()).scaled(room, Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(QPointF(), size), picture, QRectF(picture.rect()));
    return painter.end();
}

void Turn(QPagedPaintDevice& device, const Printable& printable) {
    device.setPageOrientation(printable.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

} // namespace

Printable Printable_Of(const Document& document, const painting::Qt_Painter& logos) {
    return {.title = To_Qt(document.title),
            .proposal = document.proposal,
            .landscape = false,
            .paint = [document, &logos](QPagedPaintDevice& device) {
                return painting::Print_On(document, device, logos);
            }};
}

Printable Printable_Of(const QPixmap& picture, const QString& title) {
    return {.title = title,
            .landscape = picture.width() > picture.height(),
            .paint = [picture](QPagedPaintDevice& device) {
                return Paint_Picture_On(picture, device);
            }};
}

void Set_Up_Printer(QPrinter& printer, const std::string& device, const Printable& printable,
                    std::optional<Paper_Size> paper) {
    if (QPrinterInfo::printerInfo(To_Qt(device)).isNull()) {
        Fail(error::printer_error);
    }
    printer.setPrinterName(To_Qt(device));
    printer.setDocName(printable.title);
    if (paper) {
        painting::Set_Paper(printer, *paper);
    }
    Turn(printer, printable);
}

std::string Pdf_Bytes(const Printable& printable, Paper_Size paper) {
    constexpr int dots_in_inch = 720;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Kestrum Suite"));
    writer.setTitle(printable.title);
    writer.setResolution(dots_in_inch);
    painting::Set_Paper(writer, paper);
    Turn(writer, printable);
    if (!printable.paint(writer)) {
        Fail(error::printer_error);
    }
    return bytes.toStdString();
}

Paper_Size Usual_Paper() {
    return QPageSize(QPageSize::A4).id() == QPrinter().pageLayout().pageSize().id()
               ? Paper_Size::A4
               : Paper_Size::Letter;
}

} // namespace kestrum::desktop
