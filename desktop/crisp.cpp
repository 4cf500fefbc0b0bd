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

void Crisp::Card(const QRectF& area, double radius, QRgb line, QRgb fill) const {
    const int thickness = Dots_In(1);
    const double half = thickness / 2.0;
    const QRectF middle = QRectF(Dots_Of(area)).adjusted(half, half, -half, -half);
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(QColor::fromRgb(line), thickness / to_dots_.m11()));
    painter_.setBrush(QColor::fromRgba(fill));
    painter_.drawRoundedRect(Area_Of(middle), radius, radius);
    painter_.restore();
}

} // namespace kestrum::desktop
