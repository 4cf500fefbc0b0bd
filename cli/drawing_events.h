#pragma once

#include "cli/event_printer.h"
#include "platform/drawing.h"

namespace kestrum::cli {

/// One step of a drawing as the script interface prints it.
[[nodiscard]] Event Operation_Event(const Draw_Operation& operation);

} // namespace kestrum::cli
