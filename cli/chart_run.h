#pragma once

#include "cli/chart_options.h"

#include <ostream>

namespace kestrum::cli {

/// Reads the tests and writes their chart as a picture, to `out`, or both; files that cannot be
/// read are named on `errors`. Gives the exit status: 0, or 1 when a file could not be read or the
/// picture not be written. Raises `Stream_Error` when the figures cannot be written.
[[nodiscard]] int Run_Chart(const Chart_Options& options, Painter& painter, std::ostream& out,
                            std::ostream& errors);

} // namespace kestrum::cli
