#pragma once

#include "core/session.h"
#include "graph/compare_types.h"

#include <optional>

namespace kestrum {

/// The number in one of the four limit fields; nothing for "-", an empty or an unreadable text.
[[nodiscard]] std::optional<Real> User_Limit(Session& session, const Control& field);

/// Data units in one unit of the canvas's height. Raises 6 when the limits are too far apart.
void Set_Y_Scale(Session& session);

/// The user's limits of the Y axis, with their questions and refusals.
void Apply_User_Y_Axis(Session& session, const Compare_Type& type);

} // namespace kestrum
