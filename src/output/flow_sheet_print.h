#pragma once

#include "core/session.h"
#include "drawing/paper.h"

namespace kestrum {

/// The customer sheet of a flow test, laid out for a paper.
[[nodiscard]] Pages Flow_Sheet_Pages(Session& session, const Flow_Sheet& sheet, const Paper& paper);

/// Calculates a sheet and prints it for the customer. A printer that fails is told in a box.
void Print_Flow_Sheet(Session& session, Flow_Sheet& sheet);

} // namespace kestrum
