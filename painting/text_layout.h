#pragma once

#include "painting/layers.h"

#include <span>
#include <vector>

namespace kestrum::painting {

/// A short piece of a curve before a line of a legend.
struct Sample {
    QPointF from;
    QPointF to;
    Line_Pen pen;
};

/// The texts of the canvas as they are painted, and what goes with them.
struct Text_Layout {
    std::vector<Set_Text> texts; // in their order
    std::vector<Sample> samples;
    /// One behind each block of a legend and behind each text that stands for itself in the frame.
    std::vector<QRectF> panels;
};

/// Sets the texts of a drawing. One that would lie over another moves to its
/// right, and one that would leave the frame is set smaller. Legends and headings keep their
/// places. The right side of the frame stands at `frame_right`.
[[nodiscard]] Text_Layout Lay_Out_Texts(std::span<const Draw_Operation* const> texts,
                                        double frame_right);

} // namespace kestrum::painting
