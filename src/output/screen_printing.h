#pragma once

#include "core/session.h"

namespace kestrum {

/// Prints a screen as it stands, as one picture, on the system's default printer. What fails is
/// told in a box.
void Print_Screen(Session& session, const Screen& screen);

} // namespace kestrum
