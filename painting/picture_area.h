#pragma once

#include "drawing/drawing.h"

#include <QRectF>

namespace kestrum::painting {

/// The part of the plane that the window shows of the graph, in units of the canvas: the canvas of
/// 600 by 600 with a border that takes half a thick line, and below it room for two captions.
namespace picture_area {
inline constexpr int left = -8;
inline constexpr int top = -8;
inline constexpr int width = 616;
inline constexpr int height = 664;

} // namespace picture_area

/// All of it. On a stretched canvas the border stays as wide as it is.
[[nodiscard]] QRectF Whole_Area_Of(const Drawing& drawing);

/// What a picture file shows of a drawing: the area down to its last caption, with no empty strip
/// below. Whole units.
[[nodiscard]] QRectF Area_Of(const Drawing& drawing);

} // namespace kestrum::painting
