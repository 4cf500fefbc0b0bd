#pragma once

#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

/// How `kestrum-cli report` was called.
struct Report_Options {
    /// File of the engine screen and of the selection; empty for those of a start.
    std::string main_file{};
    std::string config_file{};
    /// Empty for standard output.
    std::string output{};
    /// Whether the numbers of the tests are metric, unless the file of the engine says so itself.
    bool metric = false;
    /// One to five tests.
    std::vector<std::string> files{};
};

/// Reads the arguments behind "report". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Report_Options Report_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
