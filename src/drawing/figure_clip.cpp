#include "drawing/figure_clip.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kestrum {

namespace {

struct Stretch {
    double from = 0; // shares of the way
    double to = 1;
};

/// The share of the way between two points that lies in the box, one edge after the other.
std::optional<Stretch> Part_In(const Figure_Point& start, const Figure_Point& end,
                               const Figure_Box& box) {
    struct Edge {
        double step; // how fast the way leaves by this edge
        double room; // how far it is to the edge
    };

    const double across = end.x - start.x;
    const double down = end.y - start.y;
    const std::array edges{Edge{-across, start.x - box.left}, Edge{across, box.right - start.x},
                           Edge{-down, start.y - box.top}, Edge{down, box.bottom - start.y}};
    Stretch part;
    for (const Edge& edge : edges) {
        if (edge.step > 0) {
            part.to = std::min(part.to, edge.room / edge.step);
        } else if (edge.step < 0) {
            part.from = std::max(part.from, edge.room / edge.step);
        } else if (edge.room < 0) {
            return std::nullopt;
        }
    }
    return part.from <= part.to ? std::optional(part) : std::nullopt;
}

} // namespace

std::vector<std::vector<Figure_Point>> Pieces_In(std::span<const Figure_Point> line,
                                                 const Figure_Box& box) {
    std::vector<std::vector<Figure_Point>> pieces;
    bool goes_on = false;
    for (std::size_t at = 1; at < line.size(); ++at) {
        const Figure_Point& start = line[at - 1];
        const Figure_Point& end = line[at];
        const auto part = Part_In(start, end, box);
        if (!part) {
            goes_on = false;
            continue;
        }
        const auto between = [&](double share) {
            return Figure_Point{.x = start.x + (end.x - start.x) * share,
                                .y = start.y + (end.y - start.y) * share};
        };
        if (!goes_on) {
            pieces.push_back({between(part->from)});
        }
        pieces.back().push_back(between(part->to));
        goes_on = part->to >= 1;
    }
    return pieces;
}

} // namespace kestrum
