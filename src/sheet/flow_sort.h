#pragma once

#include "core/session.h"

namespace kestrum {

/// Orders the test rows 17 to 30 by lift, zero lifts last; the input columns move, the derived
/// ones stay. A lift that is no number counts as zero.
void Sort_Flow_Sheet(Session& session, Flow_Sheet& sheet);

} // namespace kestrum
