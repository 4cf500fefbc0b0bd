#pragma once

#include "core/session.h"

namespace kestrum {

/// Sets the value of those entries of the menus of `Main` whose choice is in force, of the
/// alignment and of the grid, and clears it of their siblings.
void Mark_Choices(Session& session);

} // namespace kestrum
