#pragma once

#include "core/session.h"

namespace kestrum {

/// Stretches all screens and the graph's canvas to the display, once and for the whole session, and
/// disables the menu entries that ask for it. A display that is too small changes no screen.
void Use_Full_Screen(Session& session);

} // namespace kestrum
