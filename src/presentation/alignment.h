#pragma once

#include "core/session.h"

namespace kestrum {

/// Gives every text box of the loaded screens the alignment of the session's mode. `Form60`,
/// `Form70` and the two caption lines of `Form50` keep theirs.
void Apply_Alignment(Session& session);

} // namespace kestrum
