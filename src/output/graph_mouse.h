#pragma once

#include "graph/graph_state.h"

namespace kestrum {

enum class Mouse_Action { Down, Move, Up };

/// The mouse on the graph's canvas: it reads values, or draws while `Form60.Check1` is set.
void Mouse_On_Canvas(Session& session, Mouse_Action action, const Curve_Point& place);

/// The mouse on the logo: while it is held, its place becomes the logo's.
void Move_Logo(Session& session, Mouse_Action action, const Position& place);

} // namespace kestrum
