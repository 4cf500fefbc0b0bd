#pragma once

#include "drawing/drawing.h"
#include "drawing/painter.h"

#include <QImage>
#include <QPainter>

#include <optional>

namespace kestrum::painting {

/// A logo as it lies over a drawing, in the drawing's units.
struct Logo_Picture {
    QImage image;
    double left = 0;
    double top = 0;
};

/// Reads a logo; one that is larger than the canvas is taken smaller. Raises 481 for a file that
/// holds no picture, or one too large to be read.
[[nodiscard]] Logo_Picture Load_Logo(const Placed_Logo& logo);

/// Paints a drawing with the logo that lies over it; the painter's units are those of the drawing.
/// Nothing is clipped.
void Replay(const Drawing& drawing, const std::optional<Logo_Picture>& logo, QPainter& painter);

/// An area of the canvas and the rectangle of the same shape that shows it.
struct Picture_Place {
    QRectF area;
    QRectF target;
};

/// Paints an area of the canvas on white, and nothing beside it.
void Paint_Picture(const Drawing& drawing, const std::optional<Logo_Picture>& logo,
                   QPainter& painter, const Picture_Place& place);

} // namespace kestrum::painting
