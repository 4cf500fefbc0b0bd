#pragma once

#include "graph/graph_canvas.h"

namespace kestrum {

/// Pens of the curves of the two tests.
inline constexpr double thin_pen = 2; // From
inline constexpr double thick_pen = 4;

/// Left end of the Y axis text and of the legends in the design, clear of the Y numbers.
inline constexpr double legend_left = 62;

/// Colours of the curves of a graph, the count 0, or of an overlay.
[[nodiscard]] const Legend_Curves& Colours_Of(int plus_count);

/// The legend block of the graph or of an overlay.
void Draw_Graph_Legend(Graph_Canvas& canvas);

} // namespace kestrum
