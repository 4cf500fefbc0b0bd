#pragma once

#include "cli/library_options.h"

#include <ostream>

namespace kestrum::cli {

/// Lists the tests below a folder on `out` and names folders that could not be looked through on
/// `errors`. Gives the exit status: 0, or 1 when anything could not be read. Raises `Stream_Error`
/// when the list cannot be written.
[[nodiscard]] int Run_Library(const Library_Options& options, std::ostream& out,
                              std::ostream& errors);

} // namespace kestrum::cli
