#pragma once

#include "core/session.h"

namespace kestrum {

/// The % change of one row of the compare table, From over To. `signed_values` takes the way of
/// the swirl, whose values can be negative; it looks at the intake columns alone. Raises the error
/// of a cell that is no number.
void Fill_Percent(Session& session, bool signed_values, int row);

} // namespace kestrum
