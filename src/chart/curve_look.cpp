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

/// In widths of the line.
const std::array<std::vector<double>, most_chart_tests> dashes_of_tests{
    {{},
     {6, 2.2},
     {1.4, 1.4},
     {5, 1.6, 1.4, 1.6},
     {3, 1.5},
     {8, 1.6},
     {4.5, 1.5, 1.3, 1.5, 1.3, 1.5},
     {1.6, 3.2}}};

} // namespace

const Chart_Colours& Light_Chart() {
    static constexpr Chart_Colours colours{
        .ground = 0xFFFFFF,
        .ink = 0x1F2933,
        .quiet = 0x5B6670,
        .grid = 0xE3E6E8,
        .rule = 0xA9AFB5,
        .curves = {0x4A545E, 0x0069AA, 0xD35400, 0x5B0C63, 0xCC77A6, 0x861209, 0x8E71F6, 0x846C4C}};
    return colours;
}

const Chart_Colours& Dark_Chart() {
    static constexpr Chart_Colours colours{
        .ground = 0x1B1E20,
        .ink = 0xE4E7EA,
        .quiet = 0xA4ACB4,
        .grid = 0x33383C,
        .rule = 0x6B747C,
        .curves = {0xC9D1D9, 0x4EA5E8, 0xFF8A3D, 0x4D8A54, 0xE6A695, 0xFFEA49, 0x9FF082, 0x9A819D}};
    return colours;
}

std::vector<double> Dashes_Of(std::size_t test, double width) {
    std::vector<double> dashes = dashes_of_tests.at(test % dashes_of_tests.size());
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
