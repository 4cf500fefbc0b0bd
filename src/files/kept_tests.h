#pragma once

#include "core/session.h"

#include <string_view>

namespace kestrum {

// Tests that would be gone with their windows are kept in the folder "kept-tests" of the program.

inline constexpr std::string_view closed_test = "closed";

/// Keeps the inputs of a sheet under a name, with the units and the separator that they are in. Of
/// a disk that takes nothing no word is said: it is more than was asked for.
void Keep_Test(Session& session, const Flow_Sheet& sheet, std::string_view name);

/// Whether a sheet is as the program brings it. In metric or with decimal commas none is known to
/// be.
[[nodiscard]] bool Is_As_Brought(Session& session, const Flow_Sheet& sheet);

/// Keeps every sheet that is not as the program brings it, as the last session's, and forgets
/// those of the session before.
void Keep_Last_Session(Session& session);

/// Whether there is one to bring back.
[[nodiscard]] bool Has_Kept_Test(const Session& session, std::string_view name);
[[nodiscard]] bool Has_Last_Session(const Session& session);

/// Puts a kept test into a sheet and calculates it. One that is in other units than `Main`, or that
/// cannot be read, is told in a box and leaves the sheet as it is.
void Bring_Back_Test(Session& session, Flow_Sheet& sheet, std::string_view name);

/// Does so with the tests of the last session, each into its sheet, and shows those.
void Bring_Back_Last_Session(Session& session);

} // namespace kestrum
