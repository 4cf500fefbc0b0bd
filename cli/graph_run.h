#pragma once

#include "cli/graph_options.h"
#include "drawing/painter.h"

#include <ostream>

namespace kestrum::cli {

/// Draws the graph of the files and writes its picture; what the boxes say goes to `errors`. Gives
/// the exit status: 0, or 1 when a file could not be loaded or the picture could not be written.
[[nodiscard]] int Run_Graph(const Graph_Options& options, Painter& painter, std::ostream& errors);

/// Fills the compare table from the two files and writes it to `out`. Gives the exit status, as
/// above. Raises `Stream_Error` when the table cannot be written.
[[nodiscard]] int Run_Compare(const Graph_Options& options, std::ostream& out,
                              std::ostream& errors);

} // namespace kestrum::cli
