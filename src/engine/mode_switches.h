#pragma once

#include "core/session.h"

namespace kestrum {

/// Gives the Mach cells the look of an input or a result, by `Check1`.
void Apply_Mach_Mode(Session& session);

/// Gives the cells of port area and peak power RPM the looks of input and result, by `Check3`.
void Apply_Rpm_Mode(Session& session);

} // namespace kestrum
