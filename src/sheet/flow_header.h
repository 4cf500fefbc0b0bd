#pragma once

#include "sheet/flow_units.h"

namespace kestrum {

/// The figures of the header block, with the warnings on high ratios. Raises the error of the
/// first step that fails; the steps before have written their fields.
void Calc_Header(const Flow_Context& context);

} // namespace kestrum
