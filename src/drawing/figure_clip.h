#pragma once

#include "drawing/figure.h"

#include <span>
#include <vector>

namespace kestrum {

/// The pieces of a line that lie in a box.
[[nodiscard]] std::vector<std::vector<Figure_Point>> Pieces_In(std::span<const Figure_Point> line,
                                                               const Figure_Box& box);

} // namespace kestrum
