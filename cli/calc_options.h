#pragma once

#include "cli/output_format.h"

#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

using Calc_Format = Output_Format;

/// How `kestrum-cli calc` was called.
struct Calc_Options {
    Calc_Format format = Calc_Format::Text;
    /// Whether the numbers of the files are metric.
    bool metric = false;
    /// Whether further file names come from standard input, one a line.
    bool names_from_input = false;
    std::vector<std::string> files;
    /// Whether control characters in what is printed have to be spelled.
    bool to_terminal = false;
};

/// Reads the arguments behind "calc". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Calc_Options Calc_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
