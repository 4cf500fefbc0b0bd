#include "chart/curve_look.h"

#include <array>
#include <cmath>
#include <numbers>

namespace kestrum {

namespace {

struct Mark_Shape {
    int corners;
    double turn;      // of the first corner from the top, in shares of a whole turn
    double inner = 1; // radius of every other corner
    double size = 1;
};

constexpr std::array<Mark_Shape, 8> marks{{
    {16, 0, 1, 1},       // circle
    {4, 0.125, 1, 1.25}, // square
    {4, 0, 1, 1.3},      // diamond
    {3, 0, 1, 1.4},      // triangle
    {3, 0.5, 1, 1.4},    // triangle upside down
    {8, 0, 0.35, 1.7},   // star of four points
    {6, 0, 1, 1.2},      // hexagon
    {10, 0, 0.45, 1.6},  // star of five points
}};

} // namespace

Curve_Look Look_Of_Curve(std::size_t test) {
    static const std::array<Curve_Look, marks.size()> looks{{
        {0x4A545E, {}},
        {0x0069AA, {7, 2.5}},
        {0xD35400, {1.6, 1.6}},
        {0x007A56, {7, 2, 1.6, 2}},
        {0xB8428C, {4, 2}},
        {0xC98A00, {12, 3}},
        {0x3FA0D8, {7, 2, 1.6, 2, 1.6, 2}},
        {0x6B2C0F, {2.8, 1.2}},
    }};
    return looks.at(test % looks.size());
}

std::vector<double> Dashes_Of(std::size_t test, double width) {
    std::vector<double> dashes = Look_Of_Curve(test).dashes;
    for (double& length : dashes) {
        length *= width;
    }
    return dashes;
}

Figure_Path Mark_Of(std::size_t test, Figure_Point centre, double radius) {
    const Mark_Shape& shape = marks.at(test % marks.size());
    Figure_Path path{.points = {}, .closed = true};
    for (int corner = 0; corner < shape.corners; ++corner) {
        const double turn =
            (static_cast<double>(corner) / shape.corners + shape.turn) * 2 * std::numbers::pi;
        const double reach = radius * shape.size * (corner % 2 == 1 ? shape.inner : 1);
        path.points.push_back(
            {.x = centre.x + reach * std::sin(turn), .y = centre.y - reach * std::cos(turn)});
    }
    return path;
}

} // namespace kestrum
