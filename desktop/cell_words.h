#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum::desktop {

/// A field in the words on the screen: "Flow Test 1, Observed Flow Intake, lift 100". An address
/// that names no field comes back as it is.
[[nodiscard]] std::string Words_Of_Field(Session& session, std::string_view address);

} // namespace kestrum::desktop
