#include "chart/monotone_curve.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace kestrum {

bool Is_Same_Lift(double a, double b) {
    constexpr double share = 1e-9;
    return std::abs(a - b) <= share * std::max(std::abs(a), std::abs(b));
}

Monotone_Curve::Monotone_Curve(std::vector<Lift_Point> points) : points_(std::move(points)) {
    if (Is_There()) {
        Set_Slopes();
    }
}

double Monotone_Curve::Width(std::size_t piece) const {
    return points_[piece + 1].lift - points_[piece].lift;
}

double Monotone_Curve::Chord(std::size_t piece) const {
    return (points_[piece + 1].value - points_[piece].value) / Width(piece);
}

void Monotone_Curve::Set_Slopes() {
    const std::size_t last = points_.size() - 1;
    slopes_.assign(points_.size(), 0);
    if (last == 1) {
        slopes_.assign(2, Chord(0));
        return;
    }
    for (std::size_t at = 1; at < last; ++at) {
        const double before = Chord(at - 1);
        const double behind = Chord(at);
        if ((before > 0 && behind > 0) || (before < 0 && behind < 0)) {
            const double weight_before = 2 * Width(at) + Width(at - 1);
            const double weight_behind = Width(at) + 2 * Width(at - 1);
            slopes_[at] =
                (weight_before + weight_behind) / (weight_before / before + weight_behind / behind);
        }
    }
    slopes_.front() = End_Slope(0, 1);
    slopes_.back() = End_Slope(last - 1, last - 2);
}

/// Three points give the slope at an end; it must neither turn nor overshoot.
double Monotone_Curve::End_Slope(std::size_t piece, std::size_t next) const {
    const double own = Chord(piece);
    const double other = Chord(next);
    const double slope = ((2 * Width(piece) + Width(next)) * own - Width(piece) * other) /
                         (Width(piece) + Width(next));
    const auto sign = [](double number) { return number > 0 ? 1 : number < 0 ? -1 : 0; };
    if (sign(slope) != sign(own)) {
        return 0;
    }
    constexpr double most = 3;
    const bool overshoots = sign(own) != sign(other) && std::abs(slope) > most * std::abs(own);
    return overshoots ? most * own : slope;
}

bool Monotone_Curve::Covers(double lift) const {
    return Is_There() && (lift >= First() || Is_Same_Lift(lift, First())) &&
           (lift <= Last() || Is_Same_Lift(lift, Last()));
}

double Monotone_Curve::Within(double lift) const {
    return std::clamp(lift, First(), Last());
}

std::size_t Monotone_Curve::Piece_Of(double lift) const {
    const auto above = std::ranges::upper_bound(points_, lift, {}, &Lift_Point::lift);
    const auto place = static_cast<std::size_t>(above - points_.begin());
    return std::clamp<std::size_t>(place, 1, points_.size() - 1) - 1;
}

std::optional<double> Monotone_Curve::At(double lift) const {
    if (!Covers(lift)) {
        return std::nullopt;
    }
    lift = Within(lift);
    const std::size_t piece = Piece_Of(lift);
    const double width = Width(piece);
    const double t = (lift - points_[piece].lift) / width;
    const double u = 1 - t;
    return u * u * ((1 + 2 * t) * points_[piece].value + t * width * slopes_[piece]) +
           t * t * ((3 - 2 * t) * points_[piece + 1].value - u * width * slopes_[piece + 1]);
}

double Monotone_Curve::Area_Up_To(std::size_t piece, double share) const {
    const double t = share;
    const double square = t * t;
    const double cube = square * t;
    const double fourth = square * square;
    const double width = Width(piece);
    return width * (points_[piece].value * (t - cube + fourth / 2) +
                    points_[piece + 1].value * (cube - fourth / 2) +
                    width * slopes_[piece] * (square / 2 - 2 * cube / 3 + fourth / 4) +
                    width * slopes_[piece + 1] * (fourth / 4 - cube / 3));
}

std::optional<double> Monotone_Curve::Mean(double from, double to) const {
    if (!(to > from) || Is_Same_Lift(from, to) || !Covers(from) || !Covers(to)) {
        return std::nullopt;
    }
    from = Within(from);
    to = Within(to);
    double area = 0;
    const std::size_t last = Piece_Of(to);
    for (std::size_t piece = Piece_Of(from); piece <= last; ++piece) {
        const auto share = [&](double lift) {
            return std::clamp((lift - points_[piece].lift) / Width(piece), 0.0, 1.0);
        };
        area += Area_Up_To(piece, share(to)) - Area_Up_To(piece, share(from));
    }
    return area / (to - from);
}

std::optional<double> Monotone_Curve::Event_Mean(double peak_lift) const {
    if (!Covers(0) || !Covers(peak_lift)) {
        return std::nullopt;
    }
    // The first and the last step count half, and the curve begins with the valve closed.
    constexpr int steps = 720;
    double sum = (*At(0) + *At(0)) / 2;
    for (int step = 1; step < steps; ++step) {
        const double sine = std::sin(std::numbers::pi * step / steps);
        const std::optional<double> value = At(peak_lift * sine * sine);
        if (!value) {
            return std::nullopt;
        }
        sum += *value;
    }
    return sum / steps;
}

} // namespace kestrum
