#pragma once

#include "cli/event_printer.h"
#include "screens/screen.h"

#include <optional>
#include <string_view>

namespace kestrum::cli {

/// A control's property by the name that the script interface gives it; nothing for an unknown.
[[nodiscard]] std::optional<Event> Property_Of(const Control& control, std::string_view name);
/// The same of a screen.
[[nodiscard]] std::optional<Event> Property_Of(const Screen& screen, std::string_view name);

} // namespace kestrum::cli
