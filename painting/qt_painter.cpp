#include "painting/qt_painter.h"

#include "painting/picture_area.h"
#include "painting/png_writer.h"
#include "painting/replay.h"
#include "painting/svg_writer.h"
#include "platform/run_time_error.h"

#include <QBuffer>
#include <QByteArray>
#include <QPageSize>
#include <QPdfWriter>

namespace kestrum::painting {

namespace {

/// One picture to be written.
struct Subject {
    const Drawing& drawing;
    std::optional<Logo_Picture> logo;
};

QImage Painted(const Subject& subject, int scale, double shift) {
    QImage image(picture_area::width * scale, picture_area::height * scale, QImage::Format_RGB32);
    if (image.isNull()) {
        Fail(error::path_or_file_access);
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    Paint_Picture(subject.drawing, subject.logo, painter,
                  QRectF(image.rect()).translated(shift, shift));
    return image;
}

std::string Png(const Subject& subject) {
    constexpr int twice = 2;
    return Png_Bytes(Painted(subject, twice, 0));
}

std::string Bmp(const Subject& subject) {
    // A line of one dot runs through the middle of the dots, not between them.
    constexpr double half_a_dot = 0.5;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!Painted(subject, 1, half_a_dot).save(&buffer, "BMP")) {
        Fail(error::path_or_file_access);
    }
    return bytes.toStdString();
}

std::string Pdf(const Subject& subject) {
    constexpr int points_in_inch = 72;
    constexpr int dots_in_point = 10;
    const QSizeF size(picture_area::width, picture_area::height);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Kestrum Suite"));
    writer.setResolution(points_in_inch * dots_in_point);
    writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&writer)) {
        Fail(error::path_or_file_access);
    }
    Paint_Picture(subject.drawing, subject.logo, painter, QRectF(QPointF(), size * dots_in_point));
    painter.end();
    return bytes.toStdString();
}

} // namespace

void Qt_Painter::Take_Logo(const std::string& file) {
    logo_ = Load_Logo({.file = file}).image;
    logo_file_ = file;
}

Logo_Picture Qt_Painter::Picture_Of_Logo(const Placed_Logo& logo) const {
    if (logo.file != logo_file_) {
        return Load_Logo(logo);
    }
    return {.image = logo_, .left = logo.left, .top = logo.top};
}

std::string Qt_Painter::Picture_Of(const Drawing& drawing, Picture_Format format,
                                   const std::optional<Placed_Logo>& logo) {
    Subject subject{.drawing = drawing, .logo = {}};
    if (logo) {
        subject.logo = Picture_Of_Logo(*logo);
    }
    switch (format) {
    case Picture_Format::Png:
        return Png(subject);
    case Picture_Format::Svg:
        return Svg_Bytes(drawing, subject.logo);
    case Picture_Format::Pdf:
        return Pdf(subject);
    case Picture_Format::Bmp:
        break;
    }
    return Bmp(subject);
}

} // namespace kestrum::painting
