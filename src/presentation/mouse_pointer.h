#pragma once

#include "core/session.h"

namespace kestrum {

/// Sets the pointer to the plain arrow on every screen.
void Set_Plain_Pointer(Session& session);

} // namespace kestrum
