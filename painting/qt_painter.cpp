#include "painting/qt_painter.h"

#include "base/run_time_error.h"
#include "drawing/paper.h"
#include "painting/figure_painter.h"
#include "painting/page_painter.h"
#include "painting/picture_area.h"
#include "painting/png_writer.h"
#include "painting/replay.h"
#include "painting/svg_writer.h"

#include <QBuffer>
#include <QByteArray>
#include <QPdfWriter>

namespace kestrum::painting {

namespace {

/// One picture to be written.
struct Subject {
    const Drawing& drawing;
    std::optional<Logo_Picture> logo;
    Picture_Settings settings;
};

QImage Painted(const Subject& subject, int dots_in_inch, double shift) {
    constexpr double inches_in_metre = 1 / 0.0254;
    const QRectF area = Area_Of(subject.drawing);
    const double scale = static_cast<double>(dots_in_inch) / points_in_inch;
    QImage image(qRound(area.width() * scale), qRound(area.height() * scale), QImage::Format_RGB32);
    if (image.isNull()) {
        Fail(error::path_or_file_access);
    }
    image.setDotsPerMeterX(qRound(dots_in_inch * inches_in_metre));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    QPainter painter(&image);
    Paint_Picture(subject.drawing, subject.logo, painter,
                  {area, QRectF(image.rect()).translated(shift, shift)});
    return image;
}

std::string Png(const Subject& subject) {
    constexpr int usual_dots = 144; // twice the size of the canvas, whose unit is a point
    return Png_Bytes(Painted(subject, subject.settings.dots_per_inch.value_or(usual_dots), 0));
}

std::string Bmp(const Subject& subject) {
    // A line of one dot runs through the middle of the dots, not between them.
    constexpr double half_a_dot = 0.5;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!Painted(subject, points_in_inch, half_a_dot).save(&buffer, "BMP")) {
        Fail(error::path_or_file_access);
    }
    return bytes.toStdString();
}

constexpr int dots_in_point = 10;

/// As large as the paper's margins allow.
Picture_Place Place_On_Paper(const Drawing& drawing, const QPdfWriter& writer) {
    const QRectF area = Area_Of(drawing);
    const QSizeF room = writer.pageLayout().paintRect(QPageLayout::Point).size();
    return {area, {QPointF(), area.size().scaled(room, Qt::KeepAspectRatio) * dots_in_point}};
}

std::string Pdf(const Subject& subject) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Kestrum Suite"));
    writer.setTitle(QStringLiteral("Graph"));
    writer.setResolution(points_in_inch * dots_in_point);
    Set_Paper(writer, subject.settings.paper.value_or(Paper_Size::A4));
    QPainter painter;
    if (!painter.begin(&writer)) {
        Fail(error::path_or_file_access);
    }
    Paint_Picture(subject.drawing, subject.logo, painter, Place_On_Paper(subject.drawing, writer));
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

QImage Qt_Painter::Image_Of(const std::string& file) const {
    try {
        return Picture_Of_Logo({.file = file}).image;
    } catch (const Run_Time_Error&) {
        return {};
    }
}

std::string Qt_Painter::Picture_Of(std::span<const Figure> pages, Picture_Format format) {
    constexpr int usual_dots = 144;
    return Figure_Bytes(pages, format, settings_.dots_per_inch.value_or(usual_dots));
}

std::string Qt_Painter::Pdf_Of(const Document& document, Paper_Size paper) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Kestrum Suite"));
    writer.setTitle(QString::fromStdString(document.title));
    writer.setResolution(points_in_inch * dots_in_point);
    Set_Paper(writer, paper);
    if (!Print_On(document, writer, *this)) {
        Fail(error::path_or_file_access);
    }
    return bytes.toStdString();
}

std::string Qt_Painter::Picture_Of(const Drawing& drawing, Picture_Format format,
                                   const std::optional<Placed_Logo>& logo) {
    Subject subject{.drawing = drawing, .logo = {}, .settings = settings_};
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
