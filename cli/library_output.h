#pragma once

#include "cli/output_format.h"
#include "library/library.h"

#include <string>
#include <vector>

namespace kestrum::cli {

/// The tests of a library, a line each; CSV and text have a header line.
[[nodiscard]] std::string Library_Lines(const std::vector<Library_Entry>& entries,
                                        Output_Format format);

} // namespace kestrum::cli
