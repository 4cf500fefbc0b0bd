#include "desktop/program_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace kestrum::desktop {

namespace {

constexpr QRgb accent = 0xFF17696A;
constexpr QRgb soft = 0xFFD7EAEA;
constexpr QRgb paper = 0xFFFFFFFF;

constexpr double units = 64; // side of the drawing

QPainterPath Valve() {
    QPainterPath valve;
    valve.moveTo(29, 8);
    valve.lineTo(29, 30);
    valve.cubicTo(29, 40, 22, 44, 13, 47);
    valve.lineTo(16, 53);
    valve.lineTo(48, 53);
    valve.lineTo(51, 47);
    valve.cubicTo(42, 44, 35, 40, 35, 30);
    valve.lineTo(35, 8);
    valve.closeSubpath();
    return valve;
}

/// The flow that comes down the port and out over the seat, on the left; the right mirrors it.
QPainterPath Flow() {
    QPainterPath flow;
    flow.moveTo(21, 12);
    flow.cubicTo(21, 30, 19, 36, 7, 40);
    return flow;
}

QPixmap Drawn(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / units, size / units);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(accent));
    constexpr double corner = 13;
    painter.drawRoundedRect(QRectF(1, 1, units - 2, units - 2), corner, corner);
    painter.setBrush(QColor::fromRgb(paper));
    painter.drawPath(Valve());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgb(soft), 3.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(Flow());
    painter.translate(units, 0);
    painter.scale(-1, 1);
    painter.drawPath(Flow());
    return picture;
}

} // namespace

QIcon Program_Icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 128}) {
        icon.addPixmap(Drawn(size));
    }
    return icon;
}

} // namespace kestrum::desktop
