#pragma once

namespace kestrum::painting {

/// The part of the plane that a picture of the graph shows, in units of the canvas: the canvas of
/// 600 by 600 with a border that takes half a thick line, and below it the two captions.
namespace picture_area {
inline constexpr int left = -8;
inline constexpr int top = -8;
inline constexpr int width = 616;
inline constexpr int height = 664;
} // namespace picture_area

} // namespace kestrum::painting
