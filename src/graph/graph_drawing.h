#pragma once

#include "core/session.h"

namespace kestrum {

/// Draws the series of the session: a fresh graph on a cleared canvas with frame, numbers and
/// captions, an overlay with its legend and curves alone. A graph that cannot be drawn, for a curve
/// that is too short, an axis without a length or one with thousands of lines, is told of in a box
/// once and stays without that curve or all. Raises the error of a field that is no number.
void Draw_Graph(Session& session);

/// The line at zero of a % graph.
void Draw_Zero_Line(Session& session);

} // namespace kestrum
