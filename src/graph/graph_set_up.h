#pragma once

#include "graph/graph_state.h"

namespace kestrum {

/// A fresh graph of the comparison that the compare screen asks for: the table is filled, series
/// and axes are worked out, the canvas is drawn and `Form60` shows. Raises the error of a cell that
/// is no number.
void Draw_Fresh_Graph(Session& session);

/// Lays the comparison over the graph that stands, on its axes, up to three times.
void Draw_Graph_Overlay(Session& session);

} // namespace kestrum
