#pragma once

#include "core/session.h"

namespace kestrum {

/// Fills the compare table from the two chosen tests, by type and X column. Row stands against
/// row, whatever lifts they hold. Each half shows its own failure in a box and keeps what it has
/// written; cells that a type leaves alone keep what an earlier comparison left.
void Fill_Compare_Table(Session& session);

} // namespace kestrum
