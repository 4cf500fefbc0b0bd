#pragma once

#include "core/session.h"

#include <string>

namespace kestrum {

/// Makes sure that a file can be shown as a logo, and keeps its size, and its picture where there
/// is a painter. Raises 481.
void Take_Logo(Session& session, const std::string& file);

} // namespace kestrum
