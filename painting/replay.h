#pragma once

#include "platform/drawing.h"
#include "platform/painter.h"

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

/// Paints a drawing; the painter's units are those of the drawing. Nothing is clipped.
void Replay(const Drawing& drawing, QPainter& painter);

/// Paints a drawing of the canvas, with what surrounds it, on white into a rectangle of the same
/// shape as the picture area.
void Paint_Picture(const Drawing& drawing, const std::optional<Logo_Picture>& logo,
                   QPainter& painter, const QRectF& target);

} // namespace kestrum::painting
