#pragma once

#include "core/session.h"

namespace kestrum {

/// Prints a screen as it stands, as one picture, on the system's default printer. Raises 482 when
/// there is none.
void Print_Screen(Session& session, const Screen& screen);

} // namespace kestrum
