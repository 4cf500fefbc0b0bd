#include "painting/polyline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kestrum::painting {

namespace {

bool Goes_On(const Draw_Operation& line, const Draw_Operation& next) {
    return next.kind == Draw_Kind::Line && next.x1 == line.x2 && next.y1 == line.y2 &&
           next.colour == line.colour && next.width == line.width && next.style == line.style &&
           next.by_hand == line.by_hand && next.role == line.role;
}

/// The directions that a straight line from one point may take to pass by all points since then.
class Passage {
public:
    explicit Passage(QPointF from) : from_(from) {}

    /// Whether a line to this point passes by them all, without having turned back; if so, it
    /// becomes one of them.
    bool Take(QPointF point) {
        const QPointF way = point - from_;
        const double length = std::hypot(way.x(), way.y());
        if (length < length_) {
            return false;
        }
        if (length_ == 0) {
            forward_ = way;
        }
        const double cross = forward_.x() * way.y() - forward_.y() * way.x();
        const double direction = std::atan2(cross, QPointF::dotProduct(forward_, way));
        if (direction < least_ || direction > most_) {
            return false;
        }
        const double play = length > tolerance ? std::asin(tolerance / length) : half_turn;
        least_ = std::max(least_, direction - play);
        most_ = std::min(most_, direction + play);
        length_ = length;
        return true;
    }

private:
    static constexpr double tolerance = 0.04; // units of the canvas
    static constexpr double half_turn = std::numbers::pi;
    QPointF from_;
    QPointF forward_;
    double length_ = 0;
    double least_ = -half_turn;
    double most_ = half_turn;
};

} // namespace

std::size_t Joined_Lines(std::span<const Draw_Operation> operations) {
    if (operations.empty() || operations.front().kind != Draw_Kind::Line) {
        return 0;
    }
    std::size_t count = 1;
    while (count < operations.size() && Goes_On(operations[count - 1], operations[count])) {
        ++count;
    }
    return count;
}

QPolygonF Points_Of(std::span<const Draw_Operation> lines) {
    QPolygonF points;
    points.append(QPointF(lines.front().x1, lines.front().y1));
    Passage passage(points.back());
    QPointF last = points.back();
    for (const Draw_Operation& line : lines) {
        const QPointF next(line.x2, line.y2);
        if (!passage.Take(next)) {
            points.append(last);
            passage = Passage(last);
            passage.Take(next);
        }
        last = next;
    }
    points.append(last);
    return points;
}

} // namespace kestrum::painting
