#pragma once

#include "core/session.h"

namespace kestrum {

// Volume (cc), centre-line length and mean area of a port: each from the other two. On a field
// that is no number or a zero divisor the target keeps its text, and nothing is shown.

void Calc_Port_Volume(Session& session);
void Calc_Port_Length(Session& session);
void Calc_Port_Area(Session& session);

} // namespace kestrum
