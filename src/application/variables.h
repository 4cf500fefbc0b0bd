#pragma once

#include "core/session.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kestrum {

using Variable_Value = std::variant<double, std::string>;

/// The present value of a shared variable of the session by the name that the system gives it, or
/// nothing for a name that it does not know.
[[nodiscard]] std::optional<Variable_Value> Variable_Named(const Session& session,
                                                           std::string_view name);

} // namespace kestrum
