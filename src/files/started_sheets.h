#pragma once

#include "core/session.h"

namespace kestrum {

/// The sheets 1 to `count` as after a start, but for the session file, which could bring numbers of
/// its own: the stored tests are calculated in US units, then the metric box is set. Gives the
/// first.
Flow_Sheet& Started_Sheets(Session& session, int count, bool metric);

} // namespace kestrum
