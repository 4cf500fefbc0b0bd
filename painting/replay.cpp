#include "painting/replay.h"

#include "painting/fitted_text.h"
#include "painting/picture_area.h"
#include "painting/polyline.h"
#include "platform/run_time_error.h"

#include <QImageReader>
#include <QPen>

#include <algorithm>

namespace kestrum::painting {

namespace {

QPen Pen_Of(const Draw_Operation& operation) {
    static constexpr std::array styles{Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    return {QColor::fromRgb(static_cast<QRgb>(operation.colour)), operation.width,
            styles.at(static_cast<std::size_t>(operation.style)), Qt::RoundCap, Qt::RoundJoin};
}

void Paint_Lines(std::span<const Draw_Operation> lines, QPainter& painter) {
    painter.setPen(Pen_Of(lines.front()));
    const QPolygonF points = Points_Of(lines);
    if (points.size() == 2 && points.front() == points.back()) {
        painter.drawPoint(points.front()); // a line without length would show nothing
    } else {
        painter.drawPolyline(points);
    }
}

void Paint_Text(const Draw_Operation& operation, QPainter& painter) {
    const Fitted_Text fitted = Fitted(operation);
    painter.save();
    painter.setPen(QColor::fromRgb(static_cast<QRgb>(operation.colour)));
    painter.setFont(fitted.font);
    painter.translate(fitted.left, fitted.baseline);
    painter.scale(fitted.scale * fitted.stretch, fitted.scale);
    painter.drawText(QPointF(0, 0), fitted.text);
    painter.restore();
}

void Paint(const Draw_Operation& operation, QPainter& painter) {
    switch (operation.kind) {
    case Draw_Kind::Circle:
        painter.setPen(Pen_Of(operation));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(operation.x1, operation.y1), operation.radius,
                            operation.radius);
        break;
    case Draw_Kind::Text:
        Paint_Text(operation, painter);
        break;
    case Draw_Kind::Clear:   // what was before it is not in the list any more
    case Draw_Kind::Line:    // painted with its neighbours
    case Draw_Kind::Picture: // none lies on the canvas
        break;
    }
}

} // namespace

Logo_Picture Load_Logo(const Placed_Logo& logo) {
    constexpr int most = 600; // units of the canvas, one for each dot of a logo
    QImageReader reader(QString::fromStdString(logo.file));
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > most || size.height() > most) {
        reader.setScaledSize(size.scaled(most, most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    QImage image = reader.read();
    if (image.isNull()) {
        Fail(error::invalid_picture);
    }
    return {.image = std::move(image), .left = logo.left, .top = logo.top};
}

void Replay(const Drawing& drawing, QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    std::span<const Draw_Operation> rest = drawing.Operations();
    while (!rest.empty()) {
        const std::size_t lines = Joined_Lines(rest);
        if (lines > 0) {
            Paint_Lines(rest.first(lines), painter);
        } else {
            Paint(rest.front(), painter);
        }
        rest = rest.subspan(std::max<std::size_t>(lines, 1));
    }
}

void Paint_Picture(const Drawing& drawing, const std::optional<Logo_Picture>& logo,
                   QPainter& painter, const QRectF& target) {
    painter.save();
    painter.fillRect(target, Qt::white);
    painter.translate(target.topLeft());
    painter.scale(target.width() / picture_area::width, target.height() / picture_area::height);
    painter.translate(-picture_area::left, -picture_area::top);
    Replay(drawing, painter);
    if (logo) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QPointF(logo->left, logo->top), logo->image);
    }
    painter.restore();
}

} // namespace kestrum::painting
