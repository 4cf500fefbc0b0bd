#pragma once

#include "cli/report_options.h"

#include <ostream>
#include <string>

namespace kestrum::cli {

/// Loads the files as the screens do and writes the report of the tests to the named file or to
/// `out`; what the boxes said goes to `errors`. `folder` is the program's folder, where the tests
/// lie that the file of the engine names. Gives the exit status: 0, or 1, with nothing written,
/// when a file could not be read to its end, a figure is no number or the report cannot be
/// written. Raises `Stream_Error` when `out` takes no more.
[[nodiscard]] int Run_Report(const Report_Options& options, const std::string& folder,
                             std::ostream& out, std::ostream& errors);

} // namespace kestrum::cli
