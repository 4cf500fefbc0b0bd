#pragma once

#include "cli/graph_options.h"
#include "drawing/paper.h"
#include "platform/clock.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

/// How `kestrum-cli print` was called.
struct Print_Options {
    /// Tests whose customer sheets are printed, one behind the other.
    std::vector<std::string> files{};
    /// The comparison that is printed instead.
    bool compares = false;
    int type = 0;
    int x_column = 0;
    bool metric = false;
    std::string company{};
    std::string logo{};
    /// Where the company stands: 0 left, 1 centre, 2 right.
    int head = 0;
    Paper_Size paper = Paper_Size::A4;
    std::string output{};
    Clock clock{};
};

/// Reads the arguments behind "print". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Print_Options Print_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
