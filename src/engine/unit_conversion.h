#pragma once

#include "core/session.h"

namespace kestrum {

/// Sets the metric box. A change of its state converts the session; a state that it has does
/// nothing. Raises as `Convert_Units`.
void Set_Metric(Session& session, bool metric);

/// Converts the field texts and captions of `Main` and of all five sheets to the units that the
/// metric box shows now. Nothing is calculated. It has no handler: a field that is no number
/// raises its error; what was converted before stays converted.
void Convert_Units(Session& session);

} // namespace kestrum
