#include "painting/replay.h"

#include "base/run_time_error.h"
#include "painting/layers.h"

#include <QFontMetricsF>
#include <QImageReader>
#include <QPaintEngine>
#include <QPen>
#include <QStaticText>

#include <array>
#include <numbers>

namespace kestrum::painting {

namespace {

QPen Qt_Pen(const Line_Pen& pen) {
    static constexpr std::array styles{Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    static constexpr std::array ends{Qt::FlatCap, Qt::SquareCap, Qt::RoundCap};
    // The pieces of a curve bend so little that a round joint shows as a knot on it.
    static constexpr std::array joints{Qt::BevelJoin, Qt::MiterJoin, Qt::RoundJoin};
    const auto end = static_cast<std::size_t>(pen.end);
    return {QColor::fromRgb(static_cast<QRgb>(pen.colour)), pen.width,
            styles.at(static_cast<std::size_t>(pen.style)), ends.at(end), joints.at(end)};
}

QColor White(double share) {
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(share));
}

/// What was set on a painter comes back on every way out, a drawing that cannot be painted
/// included.
class Kept_State {
public:
    explicit Kept_State(QPainter& painter) : painter_(painter) { painter_.save(); }

    Kept_State(const Kept_State&) = delete;
    Kept_State& operator=(const Kept_State&) = delete;

    ~Kept_State() { painter_.restore(); }

private:
    QPainter& painter_;
};

class Qt_Step_Painter : public Step_Painter {
public:
    explicit Qt_Step_Painter(QPainter& painter) : painter_(painter) {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    void Lines(const QPolygonF& points, const Line_Pen& pen) override {
        painter_.setPen(Qt_Pen(pen));
        if (points.size() == 2 && points.front() == points.back()) {
            painter_.drawPoint(points.front()); // a line without length would show nothing
        } else {
            painter_.drawPolyline(points);
        }
    }

    void Circle(QPointF centre, double radius, const Line_Pen& pen) override {
        painter_.setPen(Qt_Pen(pen));
        painter_.setBrush(Qt::white);
        painter_.drawEllipse(centre, radius, radius);
        painter_.setBrush(Qt::NoBrush);
    }

    void Panel(const QRectF& box) override { painter_.fillRect(box, White(veil)); }

    void Text(const Set_Text& text) override {
        if (text.halo > 0) {
            Paint_Halo(text);
        }
        Paint_Set_Text(text, painter_);
    }

private:
    void Paint_Halo(const Set_Text& text) {
        if (painter_.paintEngine()->type() != QPaintEngine::Raster) {
            // As outlines: a file shall hold each text once.
            painter_.strokePath(text.Outlines(), QPen(White(veil), text.halo, Qt::SolidLine,
                                                      Qt::FlatCap, Qt::BevelJoin));
            return;
        }
        // Letters kept in store, and shaped once, are painted twenty times faster than outlines.
        constexpr double veil_of_one = 0.3; // some of the copies lie over each other everywhere
        QStaticText letters(text.text);
        letters.setTextFormat(Qt::PlainText);
        const double side = text.halo / text.scale / 2;
        const double corner = side * std::numbers::sqrt2 / 2;
        const double top = -QFontMetricsF(text.font).ascent();
        painter_.save();
        Set_Up_Letters(text, painter_);
        painter_.setPen(White(veil_of_one));
        for (const QPointF& away :
             {QPointF(side, 0), QPointF(-side, 0), QPointF(0, side), QPointF(0, -side),
              QPointF(corner, corner), QPointF(-corner, corner), QPointF(corner, -corner),
              QPointF(-corner, -corner)}) {
            painter_.drawStaticText(QPointF(0, top) + away, letters);
        }
        painter_.restore();
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

void Replay(const Drawing& drawing, const std::optional<Logo_Picture>& logo, QPainter& painter) {
    Qt_Step_Painter steps(painter);
    const Layers layers(drawing);
    layers.Paint_Graph(steps);
    if (logo) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QPointF(logo->left, logo->top), logo->image);
    }
    layers.Paint_Hand_Drawing(steps);
}

void Paint_Picture(const Drawing& drawing, const std::optional<Logo_Picture>& logo,
                   QPainter& painter, const Picture_Place& place) {
    const Kept_State state(painter);
    painter.setClipRect(place.target.toAlignedRect()); // a curve may run on and on
    painter.fillRect(place.target, Qt::white);
    painter.translate(place.target.topLeft());
    painter.scale(place.target.width() / place.area.width(),
                  place.target.height() / place.area.height());
    painter.translate(-place.area.topLeft());
    Replay(drawing, logo, painter);
}

} // namespace kestrum::painting
