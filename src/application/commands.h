#pragma once

#include "core/session.h"

#include <span>
#include <string_view>

namespace kestrum {

/// What a click on a control does.
using Routine = void (*)(Session& session, Control& control);

struct Command {
    std::string_view control;
    Routine run;
};

/// The routine of a control, null for one that has none.
[[nodiscard]] Routine Routine_Of(const Control& control);

// Each screen's own.

[[nodiscard]] std::span<const Command> Engine_Commands();
[[nodiscard]] std::span<const Command> Sheet_Commands();
[[nodiscard]] std::span<const Command> Compare_Commands();
[[nodiscard]] std::span<const Command> Graph_Commands();
[[nodiscard]] std::span<const Command> Report_Commands();

// What commands of several screens do.

/// A routine that asks for nothing but the session.
template <auto routine>
void Run(Session& session, Control& /*control*/) {
    static_cast<void>(routine(session));
}

void Hide_Owner(Session& session, Control& control);
void Capture_Owner(Session& session, Control& control);

} // namespace kestrum
