#include "desktop/crisp.h"

#include "base/numeric_text.h"
#include "desktop/text_bridge.h"

#include <QPen>
#include <QPixmapCache>

#include <algorithm>

namespace kestrum::desktop {

namespace {

/// How a card looks, in dots.
struct Card_Look {
    double radius;
    int thickness;
    QRgb line;
    QRgb fill;

    /// The side of a square that holds a round corner.
    [[nodiscard]] int Corner() const { return static_cast<int>(radius) + 1 + thickness; }
};

/// The painter's unit is one dot.
void Trace(QPainter& painter, const QRect& dots, const Card_Look& look) {
    const double half = look.thickness / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(look.line), look.thickness));
    painter.setBrush(QColor::fromRgba(look.fill));
    painter.drawRoundedRect(QRectF(dots).adjusted(half, half, -half, -half), look.radius,
                            look.radius);
}

/// A card that is nothing but its four corners, traced once for each look.
QPixmap Corners_Of(const Card_Look& look) {
    std::string key = "card";
    for (const double part :
         {look.radius, 1.0 * look.thickness, 1.0 * look.line, 1.0 * look.fill}) {
        key += ' ' + Numeric_Text().Plain({part});
    }
    QPixmap corners;
    if (!QPixmapCache::find(To_Qt(key), &corners)) {
        const QRect all(0, 0, 2 * look.Corner(), 2 * look.Corner());
        corners = QPixmap(all.size());
        corners.fill(Qt::transparent);
        QPainter painter(&corners);
        Trace(painter, all, look);
        QPixmapCache::insert(To_Qt(key), corners);
    }
    return corners;
}

void Paint_Corners(QPainter& painter, const QRect& dots, const Card_Look& look) {
    const QPixmap corners = Corners_Of(look);
    const int side = look.Corner();
    const QSize size(side, side);
    for (const bool right : {false, true}) {
        for (const bool below : {false, true}) {
            const QPoint from(right ? side : 0, below ? side : 0);
            const QPoint to(right ? dots.right() + 1 - side : dots.left(),
                            below ? dots.bottom() + 1 - side : dots.top());
            painter.drawPixmap(QRect(to, size), corners, QRect(from, size));
        }
    }
}

void Paint_Between_Corners(QPainter& painter, const QRect& dots, const Card_Look& look) {
    const int side = look.Corner();
    const int thickness = look.thickness;
    const QRect across = dots.adjusted(side, 0, -side, 0);
    const QRect down = dots.adjusted(0, side, 0, -side);
    const QColor line = QColor::fromRgb(look.line);
    painter.fillRect(across.adjusted(0, 0, 0, thickness - dots.height()), line);
    painter.fillRect(across.adjusted(0, dots.height() - thickness, 0, 0), line);
    painter.fillRect(down.adjusted(0, 0, thickness - dots.width(), 0), line);
    painter.fillRect(down.adjusted(dots.width() - thickness, 0, 0, 0), line);
    const QColor fill = QColor::fromRgba(look.fill);
    painter.fillRect(across.adjusted(0, thickness, 0, side - dots.height()), fill);
    painter.fillRect(across.adjusted(0, dots.height() - side, 0, -thickness), fill);
    painter.fillRect(down.adjusted(thickness, 0, -thickness, 0), fill);
}

} // namespace

Crisp::Crisp(QPainter& painter)
    : painter_(painter), to_dots_(painter.deviceTransform()), from_dots_(to_dots_.inverted()) {}

QRect Crisp::Dots_Of(const QRectF& area) const {
    const QRectF exact = to_dots_.mapRect(area);
    const int left = qRound(exact.left());
    const int top = qRound(exact.top());
    return {left, top, qRound(exact.right()) - left, qRound(exact.bottom()) - top};
}

int Crisp::Dots_In(double units) const {
    constexpr double nearly = 0.01;
    return std::max(1, static_cast<int>(units * to_dots_.m11() + nearly));
}

QRectF Crisp::Area_Of(const QRectF& dots) const {
    return from_dots_.mapRect(dots);
}

void Crisp::Fill(const QRect& dots, QRgb colour) const {
    painter_.fillRect(Area_Of(dots), QColor::fromRgb(colour));
}

void Crisp::Frame(const QRect& dots, int thickness, QRgb colour) const {
    const int inner = dots.height() - 2 * thickness;
    Fill({dots.left(), dots.top(), dots.width(), thickness}, colour);
    Fill({dots.left(), dots.bottom() - thickness + 1, dots.width(), thickness}, colour);
    Fill({dots.left(), dots.top() + thickness, thickness, inner}, colour);
    Fill({dots.right() - thickness + 1, dots.top() + thickness, thickness, inner}, colour);
}

void Crisp::Mark(const QRect& dots, QRgb colour, bool interrupted) const {
    if (!interrupted) {
        Fill(dots, colour);
        return;
    }
    const bool lies = dots.width() >= dots.height();
    const int dash = Dots_In(4);
    const int step = dash + Dots_In(3);
    const int length = lies ? dots.width() : dots.height();
    for (int at = 0; at < length; at += step) {
        const int part = std::min(dash, length - at);
        Fill(lies ? QRect(dots.left() + at, dots.top(), part, dots.height())
                  : QRect(dots.left(), dots.top() + at, dots.width(), part),
             colour);
    }
}

/// To trace the corners of every card and button takes longer than all else on a page.
void Crisp::Card(const QRectF& area, double radius, QRgb line, QRgb fill) const {
    const QRect dots = Dots_Of(area);
    const Card_Look look{
        .radius = radius * to_dots_.m11(), .thickness = Dots_In(1), .line = line, .fill = fill};
    painter_.save();
    painter_.setWorldTransform(from_dots_ * painter_.worldTransform());
    if (std::min(dots.width(), dots.height()) < 2 * look.Corner()) {
        Trace(painter_, dots, look);
    } else {
        Paint_Corners(painter_, dots, look);
        Paint_Between_Corners(painter_, dots, look);
    }
    painter_.restore();
}

} // namespace kestrum::desktop
