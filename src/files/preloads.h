#pragma once

#include "core/session.h"

namespace kestrum {

/// Asks for the flow file of one row of the preload panel (0 to 4). A cancel changes nothing.
void Choose_Preload(Session& session, int index);

/// Loads the named files into their sheets; names of up to four characters load nothing.
void Load_Preloads(Session& session);

} // namespace kestrum
