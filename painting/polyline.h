#pragma once

#include "drawing/drawing.h"

#include <QPolygonF>

#include <cstddef>
#include <span>

namespace kestrum::painting {

/// How many of the first operations are lines of one pen, each going on where the last one ended.
/// They are painted as one line, so that its bends are joined and nothing is painted twice.
[[nodiscard]] std::size_t Joined_Lines(std::span<const Draw_Operation> operations);

/// The points of joined lines, without those that nobody could see missing: a curve is nearly
/// straight between most of its many points, and each costs time to paint.
[[nodiscard]] QPolygonF Points_Of(std::span<const Draw_Operation> lines);

} // namespace kestrum::painting
