#pragma once

#include "core/session.h"
#include "drawing/paper.h"

namespace kestrum {

/// The compare table as it stands, laid out for a paper.
[[nodiscard]] Pages Compare_Pages(Session& session, const Paper& paper);

/// Fills the compare table anew and prints it. A printer that fails is told in a box.
void Print_Compare(Session& session);

} // namespace kestrum
