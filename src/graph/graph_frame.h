#pragma once

#include "graph/graph_canvas.h"

namespace kestrum {

/// Of the frame, the lines of the valves and the legend.
inline constexpr int black = 0x000000;

/// Grid and frame, and the number of X lines where the user wants it worked out. Nothing while the
/// grid is off. Gives false for lifts that would need more lines than anyone can draw; the usual
/// ones stand then.
[[nodiscard]] bool Draw_Graph_Frame(Graph_Canvas& canvas);

/// Numbers and texts of both axes, the user's captions.
void Draw_Axis_Labels(Graph_Canvas& canvas);

} // namespace kestrum
