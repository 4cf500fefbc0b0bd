#pragma once

#include "drawing/drawing.h"

#include <QRectF>

namespace kestrum::painting {

/// The part of the plane that the window shows of the graph, in units of the canvas: the canvas of
/// 600 by 600 with a border that takes half a thick line, and below it room for two captions. On a
/// canvas that was stretched it is that much larger.
namespace picture_area {
inline constexpr int left = -8;
inline constexpr int top = -8;
inline constexpr int width = 616;
inline constexpr int height = 664;

/// All of it.
[[nodiscard]] inline QRectF Whole(const Drawing& drawing) {
    return {left * drawing.Factor_X(), top * drawing.Factor_Y(), width * drawing.Factor_X(),
            height * drawing.Factor_Y()};
}
} // namespace picture_area

/// What a picture file shows of a drawing: the area down to its last caption, with no empty strip
/// below. Whole units.
[[nodiscard]] QRectF Area_Of(const Drawing& drawing);

} // namespace kestrum::painting
