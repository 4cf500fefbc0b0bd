#include "graph/curve_fit.h"

#include <algorithm>
#include <cmath>

namespace kestrum {

namespace {

/// Equations with one value on each of the three diagonals, for X and Y at once.
std::vector<Curve_Point> Solve_Tridiagonal(double beside, double diagonal,
                                           std::span<const Curve_Point> right) {
    std::vector<Curve_Point> solution(right.size());
    std::vector<double> work(right.size());
    if (diagonal == 0) {
        return solution;
    }
    double pivot = diagonal;
    solution[0] = {right[0].x / pivot, right[0].y / pivot};
    for (std::size_t row = 1; row < right.size(); ++row) {
        work[row] = beside / pivot;
        pivot = diagonal - beside * work[row];
        solution[row].x = (right[row].x - beside * solution[row - 1].x) / pivot;
        solution[row].y = (right[row].y - beside * solution[row - 1].y) / pivot;
    }
    for (std::size_t row = right.size() - 1; row-- > 0;) {
        solution[row].x = solution[row].x - work[row + 1] * solution[row + 1].x;
        solution[row].y = solution[row].y - work[row + 1] * solution[row + 1].y;
    }
    return solution;
}

/// The factors of one sample, which X and Y share.
struct Blend {
    double before; // parameter to the next point
    double behind; // parameter from the last one
    double step;   // between two points
    double pull;   // 1 / tension / tension
    double sinh_before;
    double sinh_behind;
    double sinh_step;

    [[nodiscard]] double Of(double p0, double p1, double z0, double z1) const {
        return (p0 - pull * z0) * before / step + pull * z0 * sinh_before / sinh_step +
               (p1 - pull * z1) * behind / step + pull * z1 * sinh_behind / sinh_step;
    }
};

} // namespace

// Built from exponentials as they stand here; the library's own differ in the last digits.

double Hyp_Cos(double x) {
    return (std::exp(x) + std::exp(-x)) / 2;
}

double Hyp_Sin(double x) {
    return (std::exp(x) - std::exp(-x)) / 2;
}

std::vector<Curve_Point> Fit_Tension_Spline(std::span<const Curve_Point> points, double tension) {
    const std::size_t count = points.size();
    const double h = 1.0 / static_cast<double>(count - 1);
    const double beside = 1 / h - tension / Hyp_Sin(tension * h);
    const double diagonal = 2 * tension * Hyp_Cos(tension * h) / Hyp_Sin(tension * h) - 2 / h;
    const double scale = tension * tension / h;
    std::vector<Curve_Point> right(count - 2);
    for (std::size_t point = 1; point + 1 < count; ++point) {
        right[point - 1].x =
            (points[point + 1].x - 2 * points[point].x + points[point - 1].x) * scale;
        right[point - 1].y =
            (points[point + 1].y - 2 * points[point].y + points[point - 1].y) * scale;
    }
    const std::vector<Curve_Point> inner = Solve_Tridiagonal(beside, diagonal, right);
    std::vector<Curve_Point> bends(count); // the ends are natural: zero
    std::ranges::copy(inner, bends.begin() + 1);
    return bends;
}

void Sample_Curve(std::span<const Curve_Point> points, double tension, int samples,
                  const std::function<void(Curve_Point)>& take) {
    const std::vector<Curve_Point> bends = Fit_Tension_Spline(points, tension);
    const auto intervals = static_cast<double>(points.size() - 1);
    const double step = 1 / intervals;
    const double sinh_step = Hyp_Sin(tension * step);
    for (int sample = 1; sample < samples; ++sample) {
        const double u = static_cast<double>(sample) / samples;
        const double next = std::min(std::floor(intervals * u) + 1, intervals);
        const double before = next / intervals - u;
        const double behind = u - (next - 1) / intervals;
        const Blend blend{.before = before,
                          .behind = behind,
                          .step = step,
                          .pull = 1 / tension / tension,
                          .sinh_before = Hyp_Sin(tension * before),
                          .sinh_behind = Hyp_Sin(tension * behind),
                          .sinh_step = sinh_step};
        const auto interval = static_cast<std::size_t>(next);
        const Curve_Point& p0 = points[interval - 1];
        const Curve_Point& p1 = points[interval];
        take({blend.Of(p0.x, p1.x, bends[interval - 1].x, bends[interval].x),
              blend.Of(p0.y, p1.y, bends[interval - 1].y, bends[interval].y)});
    }
}

} // namespace kestrum
