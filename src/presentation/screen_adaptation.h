#pragma once

#include "core/session.h"

namespace kestrum {

/// Stretches every screen so that it fills about nine tenths of the display, and notes the factors
/// of the graph and the size that its canvas has now. False, with nothing changed, on a display
/// that is too small. To be called once in a session at most.
[[nodiscard]] bool Scale_All_Screens(Session& session);

/// Tells the size of the display and its density in a box.
void Show_Screen_Resolution(Session& session);

} // namespace kestrum
