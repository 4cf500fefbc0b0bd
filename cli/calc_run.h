#pragma once

#include "cli/calc_options.h"

#include <istream>
#include <ostream>

namespace kestrum::cli {

/// Loads the files one after the other and writes their figures to `out` and what the boxes said
/// to `errors`. Gives the exit status: 0, or 1 when a file could not be loaded. Raises
/// `Stream_Error` when the figures cannot be written or the names not be read.
[[nodiscard]] int Run_Calc(const Calc_Options& options, std::istream& names, std::ostream& out,
                           std::ostream& errors);

} // namespace kestrum::cli
