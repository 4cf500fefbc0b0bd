#pragma once

#include "output/flow_figures.h"

#include <string>
#include <vector>

namespace kestrum::cli {

/// Adds the figures of a sheet for reading: the header block as a list, then the lift rows as a
/// table for each page of the sheet, with the sheet's own headings and the units below them.
void Append_Tables(std::string& out, const std::vector<Flow_Figure>& figures);

} // namespace kestrum::cli
