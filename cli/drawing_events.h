#pragma once

#include "cli/event_printer.h"
#include "drawing/drawing.h"

#include <span>

namespace kestrum::cli {

/// One step of a drawing as the script interface prints it.
[[nodiscard]] Event Operation_Event(const Draw_Operation& operation);

[[nodiscard]] Event Operation_Events(std::span<const Draw_Operation> operations);

} // namespace kestrum::cli
