#pragma once

#include "graph/graph_canvas.h"

namespace kestrum {

/// Grid and frame, and the number of X lines where the user wants it worked out. Nothing while the
/// grid is off.
void Draw_Graph_Frame(Graph_Canvas& canvas);

/// Numbers and texts of both axes, the user's captions and the first legend.
void Draw_Axis_Labels(Graph_Canvas& canvas);

/// The legend block of the graph or of an overlay.
void Draw_Graph_Legend(Graph_Canvas& canvas);

} // namespace kestrum
