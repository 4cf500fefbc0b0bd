#pragma once

#include "core/session.h"

#include <optional>
#include <string_view>

namespace kestrum {

/// Gives every text box of the loaded screens the alignment of the session's mode. `Form60`,
/// `Form70` and the two caption lines of `Form50` keep theirs.
void Apply_Alignment(Session& session);

/// Whether a menu entry names the alignment or the style of the grid that is in force; nothing for
/// an entry that names neither.
[[nodiscard]] std::optional<bool> Is_In_Force(const Session& session, std::string_view entry);

} // namespace kestrum
