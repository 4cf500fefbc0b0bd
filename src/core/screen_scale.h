#pragma once

#include "core/session.h"

namespace kestrum {

/// Factors that let a screen of its design size fill the targets of an adapted display; none is
/// below 1. The graph keeps its shape unless its aspect is free.
[[nodiscard]] Screen_Scale Factors_For(const Screen& screen, const Display_Scale& display);

/// Stretches a screen of design size with all that stands on it, and puts it into the middle of the
/// display, or somewhat above it when it leaves room.
void Apply_Screen_Scale(Screen& screen, const Screen_Scale& scale, const Display& display);

} // namespace kestrum
