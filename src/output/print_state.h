#pragma once

#include "core/session.h"

#include <array>
#include <string>

namespace kestrum {

/// What the prints of a session share.
struct Print_State {
    /// What the box of the printers shows.
    std::string chosen_printer{};
    /// The printer in force; empty stands for the default one of the system.
    std::string printer{};
    /// Left edges of the columns of a printed page; index 97 to 99 are its limits.
    std::array<int, 100> tab{};
    /// Top of the row being printed.
    int row_y = 0;
    /// The width that was measured last.
    double text_width = 0;
};

[[nodiscard]] inline Print_State& Print_Of(Session& session) {
    return session.wings.Of<Print_State>();
}

[[nodiscard]] inline const Print_State& Print_Of(const Session& session) {
    return session.wings.Of<Print_State>();
}

} // namespace kestrum
