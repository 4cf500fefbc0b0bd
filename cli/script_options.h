#pragma once

#include "platform/surroundings.h"

#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

/// How `kestrum-cli script` was called.
struct Script_Options {
    Surroundings surroundings;
    /// Whether rescue copies are kept and offered, as on the desktop.
    bool rescue = false;
    /// The system's printers, the default one first.
    std::vector<std::string> printers{"Headless Printer"};
    /// The script; "-" reads standard input.
    std::string file;
};

/// Reads the arguments behind "script". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Script_Options Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
