#pragma once

#include "core/session.h"

namespace kestrum {

/// The compare table has just been filled from the two chosen tests. That costs nothing; the
/// digests are taken with the next look, which a face with windows takes after each command.
void Note_Filled_Table(Session& session);

/// Tells the table whether the tests still hold the figures that it was filled with, also when
/// steps have been taken back since.
void Note_Age_Of_Table(Session& session);

} // namespace kestrum
