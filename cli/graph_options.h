#pragma once

#include "cli/graph_extras.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum::cli {

/// Two tests that stand against each other.
struct File_Pair {
    std::string from;
    std::string to;
};

/// How `kestrum-cli graph` or `kestrum-cli compare` was called.
struct Graph_Options {
    /// The first pair; the further ones are laid over its graph.
    std::vector<File_Pair> pairs;
    int type = 0;
    /// X column: 0 valve lift, 1 intake L/D, 2 exhaust L/D.
    int x_column = 0;
    /// Whether the numbers of the files are metric.
    bool metric = false;
    bool csv = false;
    /// File of the picture.
    std::string output{};
    /// Whether control characters in what is printed have to be spelled.
    bool to_terminal = false;
    Graph_Extras extras{};
};

/// Read the arguments behind "graph" and behind "compare". Raise `Usage_Error` for one that
/// cannot be used.
[[nodiscard]] Graph_Options Graph_Options_From(std::span<const char* const> arguments);
[[nodiscard]] Graph_Options Compare_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
