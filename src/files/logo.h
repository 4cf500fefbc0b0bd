#pragma once

#include "core/session.h"

namespace kestrum {

/// Shows the logo of the session's `logo_file` on `Form60` when the logo is on, and takes off the
/// one that stands there when it is off or has no name. One that cannot be loaded is told in a box
/// and switches the logo off.
void Show_Logo(Session& session);

} // namespace kestrum
