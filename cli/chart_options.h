#pragma once

#include "chart/chart.h"
#include "cli/output_format.h"
#include "drawing/painter.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

/// How `kestrum-cli chart` was called.
struct Chart_Options {
    std::vector<std::string> files;
    Chart_Request request;
    Output_Format format = Output_Format::Text;
    /// Whether the numbers of `.dat` files are metric.
    bool metric_files = false;
    /// The picture; empty without one.
    std::string output;
    Picture_Format picture = Picture_Format::Svg;
    bool to_terminal = false;

    /// A picture alone leaves the standard output empty.
    [[nodiscard]] bool Prints() const { return output.empty() || format != Output_Format::Text; }
};

/// Reads the arguments behind "chart". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Chart_Options Chart_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
