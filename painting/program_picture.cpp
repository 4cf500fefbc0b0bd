#include "painting/program_picture.h"

#include <cmath>
#include <numbers>

namespace kestrum::painting {

namespace {

constexpr int accent = 0x17696A;
constexpr int soft = 0xD7EAEA;
constexpr int sheet_white = 0xFFFFFF;
constexpr double units = 64; // side of the drawing

using Points = std::vector<Figure_Point>;

/// Goes on from the last point along a cubic curve.
void Bend(Points& points, Figure_Point first, Figure_Point second, Figure_Point end) {
    constexpr int pieces = 24;
    const Figure_Point start = points.back();
    for (int piece = 1; piece <= pieces; ++piece) {
        const double to = static_cast<double>(piece) / pieces;
        const double from = 1 - to;
        const auto between = [to, from](double a, double b, double c, double d) {
            return from * from * from * a + 3 * from * from * to * b + 3 * from * to * to * c +
                   to * to * to * d;
        };
        points.push_back({between(start.x, first.x, second.x, end.x),
                          between(start.y, first.y, second.y, end.y)});
    }
}

/// A quarter of a circle, clockwise, from an angle in quarters.
void Turn(Points& points, Figure_Point centre, double radius, int quarter) {
    constexpr int pieces = 12;
    for (int piece = 0; piece <= pieces; ++piece) {
        const double angle = (quarter + static_cast<double>(piece) / pieces) * std::numbers::pi / 2;
        points.push_back(
            {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
}

Points Plate() {
    constexpr double edge = 1;
    constexpr double corner = 13;
    constexpr double near = edge + corner;
    constexpr double far = units - near;
    Points points;
    Turn(points, {far, far}, corner, 0);
    Turn(points, {near, far}, corner, 1);
    Turn(points, {near, near}, corner, 2);
    Turn(points, {far, near}, corner, 3);
    return points;
}

Points Mirrored(Points points) {
    for (Figure_Point& point : points) {
        point.x = units - point.x;
    }
    return points;
}

/// The left half of the valve, from the top of its stem to the middle of its head.
Points Valve_Half() {
    Points points{{29, 8}, {29, 30}};
    Bend(points, {29, 40}, {22, 44}, {13, 47});
    points.push_back({16, 53});
    return points;
}

Points Valve() {
    Points points = Valve_Half();
    const Points other = Mirrored(points);
    points.insert(points.end(), other.rbegin(), other.rend());
    return points;
}

/// The flow that comes down the port and out over the seat on the left, with round ends.
Points Flow() {
    constexpr double half = 1.75;
    Points points{{21 + half, 12}};
    Bend(points, {21 + half, 31}, {19 + half, 38}, {8, 40 + half});
    Turn(points, {8, 40}, half, 1);
    Turn(points, {8, 40}, half, 2);
    Bend(points, {18 - half, 35}, {21 - half, 29}, {21 - half, 12});
    Turn(points, {21, 12}, half, 2);
    Turn(points, {21, 12}, half, 3);
    return points;
}

void Fill(Figure& figure, Points points, int colour) {
    figure.Add(Figure_Path{.points = std::move(points), .closed = true, .fill = colour});
}

} // namespace

Figure Program_Picture() {
    Figure figure(units, units);
    Fill(figure, Plate(), accent);
    Fill(figure, Flow(), soft);
    Fill(figure, Mirrored(Flow()), soft);
    Fill(figure, Valve(), sheet_white);
    return figure;
}

} // namespace kestrum::painting
