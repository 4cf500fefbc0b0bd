#pragma once

#include "core/session.h"

namespace kestrum {

/// Draws the series of the session: a fresh graph on a cleared canvas with frame, numbers and
/// captions, an overlay with its legend and curves alone. Raises the error of a field that is no
/// number.
void Draw_Graph(Session& session);

/// The line at zero of a % graph.
void Draw_Zero_Line(Session& session);

} // namespace kestrum
