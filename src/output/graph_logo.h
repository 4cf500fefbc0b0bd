#pragma once

#include "core/session.h"

namespace kestrum {

/// Takes the logo off the graph screen, or asks for a picture and puts it there. What fails is told
/// in a box and leaves the logo off.
void Toggle_Logo(Session& session);

} // namespace kestrum
