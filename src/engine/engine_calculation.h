#pragma once

#include "core/session.h"

namespace kestrum {

/// Sizes the engine's induction from the inputs of `Main`, in the units of `Check2`. Each step
/// writes a text that later steps read back. It has no handler: a field that is no number or a
/// zero divisor raises its run-time error, and the steps before keep their new texts.
void Calc_Engine(Session& session);

} // namespace kestrum
