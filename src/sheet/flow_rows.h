#pragma once

#include "sheet/flow_units.h"

namespace kestrum {

/// The derived figures of one lift row, in their order, added to the session's totals. Raises the
/// error of the first that fails.
void Calc_Lift_Row(const Flow_Context& context, int row);

/// The ratios and averages behind the rows. Raises 6 when no row has flow.
void Calc_Averages(const Flow_Context& context);

} // namespace kestrum
