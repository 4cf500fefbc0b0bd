#include "desktop/crisp.h"

#include <QPen>

#include <algorithm>

namespace kestrum::desktop {

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

/// The path around a large card is traced line by line, which takes longer than all else on a
/// page; only its ends are round.
void Crisp::Card(const QRectF& area, double radius, QRgb line, QRgb fill) const {
    const QRect dots = Dots_Of(area);
    const int thickness = Dots_In(1);
    const int end = Dots_In(radius) + thickness;
    if (dots.height() <= 4 * end) {
        Round({dots, radius, line, fill});
        return;
    }
    const QRect middle = dots.adjusted(0, end, 0, -end);
    Fill({middle.topLeft(), QSize(thickness, middle.height())}, line);
    Fill(middle.adjusted(middle.width() - thickness, 0, 0, 0), line);
    painter_.fillRect(Area_Of(middle.adjusted(thickness, 0, -thickness, 0)),
                      QColor::fromRgba(fill));
    const QSize whole(dots.width(), 2 * end);
    const QSize shown(dots.width(), end);
    const QPoint last = dots.bottomLeft() + QPoint(0, 1);
    for (const bool is_top : {true, false}) {
        painter_.save();
        painter_.setClipRect(
            Area_Of({is_top ? dots.topLeft() : last - QPoint(0, end), QSizeF(shown)}),
            Qt::IntersectClip);
        Round({QRect(is_top ? dots.topLeft() : last - QPoint(0, 2 * end), whole), radius, line,
               fill});
        painter_.restore();
    }
}

void Crisp::Round(const Round_Card& card) const {
    const int thickness = Dots_In(1);
    const double half = thickness / 2.0;
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(QColor::fromRgb(card.line), thickness / to_dots_.m11()));
    painter_.setBrush(QColor::fromRgba(card.fill));
    painter_.drawRoundedRect(Area_Of(QRectF(card.dots).adjusted(half, half, -half, -half)),
                             card.radius, card.radius);
    painter_.restore();
}

} // namespace kestrum::desktop
