#include "painting/figure_painter.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "drawing/paper.h"
#include "painting/png_writer.h"

#include <QBuffer>
#include <QByteArray>
#include <QFontMetricsF>
#include <QPdfWriter>

namespace kestrum::painting {

namespace {

QColor Colour_Of(int colour, double opacity = 1) {
    QColor result(QRgb(0xFF000000U | static_cast<unsigned>(colour)));
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

QPen Pen_Of(const Figure_Path& path) {
    if (path.stroke == no_colour) {
        return {Qt::NoPen};
    }
    QPen pen(Colour_Of(path.stroke), path.width);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::RoundJoin);
    if (!path.dashes.empty()) {
        QList<qreal> pattern; // in widths of the pen
        for (const double length : path.dashes) {
            pattern.append(length / path.width);
        }
        pen.setDashPattern(pattern);
    }
    return pen;
}

void Paint_Step(const Figure_Path& path, QPainter& painter) {
    QPolygonF points;
    for (const Figure_Point& point : path.points) {
        points.append({point.x, point.y});
    }
    painter.setPen(Pen_Of(path));
    painter.setBrush(path.fill == no_colour ? QBrush(Qt::NoBrush)
                                            : QBrush(Colour_Of(path.fill, path.opacity)));
    if (path.closed) {
        painter.drawPolygon(points);
    } else {
        painter.drawPolyline(points);
    }
}

void Paint_Step(const Figure_Text& text, QPainter& painter) {
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(text.bold);
    // Set large and painted small: sizes are whole on some devices.
    constexpr int letter_scale = 10;
    font.setPixelSize(qRound(text.size * letter_scale));
    const QString letters = QString::fromStdString(Decoded(text.text));
    const double width = QFontMetricsF(font).horizontalAdvance(letters);
    const double share = text.anchor == Text_Anchor::Left     ? 0
                         : text.anchor == Text_Anchor::Centre ? 0.5
                                                              : 1;
    painter.save();
    painter.translate(text.x, text.y);
    painter.rotate(text.upwards ? -90 : 0);
    painter.scale(1.0 / letter_scale, 1.0 / letter_scale);
    painter.setFont(font);
    painter.setPen(Colour_Of(text.colour));
    painter.drawText(QPointF(-width * share, 0), letters);
    painter.restore();
}

void Paint_Step(const Figure_Picture& picture, QPainter& painter) {
    const QImage image = QImage::fromData(QByteArray::fromStdString(picture.bytes));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(
        QRectF(picture.box.left, picture.box.top, picture.box.Width(), picture.box.Height()),
        image);
}

std::string Png_Of(const Figure& figure, int dots_in_inch) {
    constexpr double inches_in_metre = 1 / 0.0254;
    const double scale = static_cast<double>(dots_in_inch) / points_in_inch;
    QImage image(qRound(figure.width * scale), qRound(figure.height * scale), QImage::Format_RGB32);
    if (image.isNull()) {
        Fail(error::path_or_file_access);
    }
    image.setDotsPerMeterX(qRound(dots_in_inch * inches_in_metre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    Paint_Figure(figure, painter);
    painter.end();
    return Png_Bytes(image);
}

std::string Pdf_Of(std::span<const Figure> pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Kestrum Suite"));
    writer.setTitle(QStringLiteral("Chart"));
    writer.setPageSize(
        QPageSize(QSizeF(pages.front().width, pages.front().height), QPageSize::Point));
    writer.setPageMargins({});
    constexpr int dots_in_point = 10;
    writer.setResolution(points_in_inch * dots_in_point);
    QPainter painter;
    if (!painter.begin(&writer)) {
        Fail(error::path_or_file_access);
    }
    painter.scale(dots_in_point, dots_in_point);
    for (const Figure& page : pages) {
        if (&page != &pages.front()) {
            writer.newPage();
        }
        Paint_Figure(page, painter);
    }
    painter.end();
    return bytes.toStdString();
}

} // namespace

void Paint_Figure(const Figure& figure, QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Figure::Step& step : figure.Steps()) {
        std::visit([&painter](const auto& kind) { Paint_Step(kind, painter); }, step);
    }
}

std::string Figure_Bytes(std::span<const Figure> pages, Picture_Format format, int dots_in_inch) {
    return format == Picture_Format::Pdf ? Pdf_Of(pages)
                                         : Png_Of(Below_Each_Other(pages), dots_in_inch);
}

} // namespace kestrum::painting
