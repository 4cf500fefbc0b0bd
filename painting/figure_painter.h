#pragma once

#include "drawing/figure.h"
#include "drawing/painter.h"

#include <QPainter>

namespace kestrum::painting {

/// Paints a figure; the painter's units are points.
void Paint_Figure(const Figure& figure, QPainter& painter);

/// The bytes of a PNG or PDF file of pages, which only PDF keeps apart. Raises 75 for a picture
/// that cannot be made.
[[nodiscard]] std::string Figure_Bytes(std::span<const Figure> pages, Picture_Format format,
                                       int dots_in_inch);

} // namespace kestrum::painting
