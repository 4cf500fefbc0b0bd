#include "painting/replay.h"

#include "painting/layers.h"
#include "painting/picture_area.h"
#include "painting/polyline.h"
#include "platform/run_time_error.h"

#include <QImageReader>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>

#include <array>
#include <numbers>

namespace kestrum::painting {

namespace {

QPen Pen_Of(const Draw_Operation& operation) {
    static constexpr std::array styles{Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    // The pieces of a curve bend so little that a round joint shows as a knot on it.
    const Qt::PenJoinStyle joint = operation.by_hand ? Qt::RoundJoin : Qt::BevelJoin;
    return {QColor::fromRgb(static_cast<QRgb>(operation.colour)), operation.width,
            styles.at(static_cast<std::size_t>(operation.style)), Qt::RoundCap, joint};
}

class Qt_Step_Painter : public Step_Painter {
public:
    explicit Qt_Step_Painter(QPainter& painter) : painter_(painter) {}

    void Lines(std::span<const Draw_Operation> lines) override {
        painter_.setPen(Pen_Of(lines.front()));
        const QPolygonF points = Points_Of(lines);
        if (points.size() == 2 && points.front() == points.back()) {
            painter_.drawPoint(points.front()); // a line without length would show nothing
        } else {
            painter_.drawPolyline(points);
        }
    }

    void Circle(const Draw_Operation& circle) override {
        painter_.setPen(Pen_Of(circle));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawEllipse(QPointF(circle.x1, circle.y1), circle.radius, circle.radius);
    }

    void Text(const Fitted_Text& text) override {
        painter_.save();
        painter_.setFont(text.font);
        painter_.translate(text.left, text.baseline);
        painter_.scale(text.scale * text.stretch, text.scale);
        Paint_Halo(text.text, text.halo / text.scale);
        painter_.setPen(QColor::fromRgb(static_cast<QRgb>(text.colour)));
        painter_.drawText(QPointF(0, 0), text.text);
        painter_.restore();
    }

private:
    /// White around letters at the origin, of the painter's present font.
    void Paint_Halo(const QString& text, double width) {
        painter_.setPen(QPen(Qt::white, width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
        if (painter_.paintEngine()->type() != QPaintEngine::Raster) {
            QPainterPath letters; // a file shall hold each text once
            letters.addText(QPointF(0, 0), painter_.font(), text);
            painter_.strokePath(letters, painter_.pen());
            return;
        }
        // Letters kept in store are painted twenty times faster than outlines.
        const double side = width / 2;
        const double corner = side * std::numbers::sqrt2 / 2;
        for (const QPointF& place :
             {QPointF(side, 0), QPointF(-side, 0), QPointF(0, side), QPointF(0, -side),
              QPointF(corner, corner), QPointF(-corner, corner), QPointF(corner, -corner),
              QPointF(-corner, -corner)}) {
            painter_.drawText(place, text);
        }
    }

    QPainter& painter_;
};

} // namespace

Logo_Picture Load_Logo(const Placed_Logo& logo) {
    constexpr int most = 600;           // units of the canvas, one for each dot of a logo
    constexpr int most_megabytes = 512; // a photograph of a hundred million dots
    QImageReader::setAllocationLimit(most_megabytes);
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
    Qt_Step_Painter steps(painter);
    Paint_In_Layers(drawing, steps);
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
