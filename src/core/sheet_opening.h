#pragma once

#include "core/session.h"

namespace kestrum {

/// Shows a sheet under its caption, which it has from its first opening on.
void Show_With_Caption(Session& session, Flow_Sheet& sheet);

} // namespace kestrum
