#pragma once

#include "cli/print_options.h"
#include "drawing/painter.h"

#include <functional>
#include <ostream>

namespace kestrum::cli {

/// Prints the sheets of the files, or their comparison, to a PDF file; what the boxes say goes to
/// `errors`. `painter` gives the one that paints. Gives the exit status: 0, or 1 when a file could
/// not be loaded or the PDF file could not be written.
[[nodiscard]] int Run_Print(const Print_Options& options, const std::function<Painter&()>& painter,
                            std::ostream& errors);

} // namespace kestrum::cli
