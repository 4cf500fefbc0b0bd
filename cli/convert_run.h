#pragma once

#include "cli/convert_options.h"

#include <istream>
#include <ostream>

namespace kestrum::cli {

/// Converts the files one after the other and writes what the boxes said to `errors`. Gives the
/// exit status: 0, or 1 when a file did not convert. Raises `Usage_Error` when several names come
/// for one output file and `Stream_Error` when the names cannot be read.
[[nodiscard]] int Run_Convert(const Convert_Options& options, std::istream& names,
                              std::ostream& errors);

} // namespace kestrum::cli
