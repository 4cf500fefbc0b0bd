#pragma once

#include "core/session.h"

namespace kestrum {

/// What a click on a control does.
using Routine = void (*)(Session& session, Control& control);

/// The routine of a control, null for one that has none.
[[nodiscard]] Routine Routine_Of(const Control& control);

} // namespace kestrum
