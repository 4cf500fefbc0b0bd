#include "painting/page_painter.h"

#include "painting/qt_painter.h"
#include "painting/set_text.h"

#include <QPageSize>
#include <QPen>

#include <algorithm>

namespace kestrum::painting {

namespace {

constexpr double twips_in_point = 20;
constexpr double twips_in_inch = 1440;

/// Size in points that a comment shall not fall below if that can be helped.
constexpr int least_readable = 7;

Letters Letters_For(double size) {
    constexpr double squeeze_that_nobody_sees = 0.85;
    return {.families = {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                         QStringLiteral("DejaVu Sans")},
            .dots = twips_in_point,
            .line_height = Printed_Text_Height(size),
            .least_squeeze = squeeze_that_nobody_sees};
}

Set_Text Set_In_Cell(const Draw_Operation& step) {
    constexpr double gap = 80; // between two neighbours
    return Set_In_Room(step, std::max(step.limit - step.cell - gap, gap), Letters_For(step.size));
}

/// The lines across the whole page are the ones that may be divided.
bool Is_Long(const Draw_Operation& step) {
    return step.limit - step.cell > page_width / 2;
}

/// A comment that would be too small to be read takes two lines of half the height.
void Paint_Text(const Draw_Operation& step, QPainter& painter) {
    const std::size_t middle = step.text.find(' ', step.text.size() / 2);
    if (middle == std::string::npos || !Is_Long(step) ||
        Set_In_Cell(step).font.pixelSize() >= least_readable * twips_in_point) {
        return Paint_Set_Text(Set_In_Cell(step), painter);
    }
    Draw_Operation half = step;
    half.size /= 2;
    half.text = step.text.substr(0, middle);
    Paint_Set_Text(Set_In_Cell(half), painter);
    half.y1 += Printed_Text_Height(half.size);
    half.text = step.text.substr(middle + 1);
    Paint_Set_Text(Set_In_Cell(half), painter);
}

void Paint_Line(const Draw_Operation& step, QPainter& painter) {
    constexpr double thinnest = 8; // of what an office printer shows
    painter.setPen(QPen(QColor::fromRgb(static_cast<QRgb>(step.colour)),
                        std::max(step.width, thinnest), Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(step.x1, step.y1), QPointF(step.x2, step.y2));
}

void Paint_Logo(const Draw_Operation& step, QPainter& painter, const Qt_Painter& logos) {
    const QImage image = logos.Image_Of(step.text);
    if (!image.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(step.x1, step.y1, step.x2, step.y2), image);
    }
}

} // namespace

void Set_Paper(QPagedPaintDevice& device, Paper_Size size) {
    constexpr double margin = ordinary_margin / twips_in_point;
    device.setPageSize(QPageSize(size == Paper_Size::A4 ? QPageSize::A4 : QPageSize::Letter));
    device.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
}

void Paint_Page(const Drawing& page, QPainter& painter, const Qt_Painter& logos) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Draw_Operation& step : page.Operations()) {
        if (step.kind == Draw_Kind::Text) {
            Paint_Text(step, painter);
        } else if (step.kind == Draw_Kind::Line) {
            Paint_Line(step, painter);
        } else if (step.kind == Draw_Kind::Picture) {
            Paint_Logo(step, painter, logos);
        }
    }
}

bool Print_On(const Document& document, QPagedPaintDevice& device, const Qt_Painter& logos) {
    const QSizeF room = device.pageLayout().paintRect(QPageLayout::Point).size() * twips_in_point;
    const Paper paper{.width = room.width(), .height = room.height()};
    const Pages pages = document.lay_out(paper);
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const double dots_in_twip = device.logicalDpiX() / twips_in_inch;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        if (index > 0) {
            device.newPage();
        }
        const double scale = Scale_To_Fit(pages[index], paper);
        painter.resetTransform();
        painter.scale(dots_in_twip, dots_in_twip);
        painter.translate((paper.width - page_width * scale) / 2, 0);
        painter.scale(scale, scale);
        Paint_Page(pages[index], painter, logos);
    }
    return painter.end();
}

} // namespace kestrum::painting
