#pragma once

#include "cli/output_format.h"
#include "library/library_columns.h"

#include <span>
#include <string>

namespace kestrum::cli {

/// How `kestrum-cli library` was called.
struct Library_Options {
    std::string folder{};
    Output_Format format = Output_Format::Text;
    bool metric_files = false;
    std::string where{};                  // in lower case
    const Library_Column* sort = nullptr; // null: as the files are named
    unsigned jobs = 1;
    bool to_terminal = false;
};

/// Reads the arguments behind "library". Raises `Usage_Error` for one that cannot be used.
[[nodiscard]] Library_Options Library_Options_From(std::span<const char* const> arguments);

} // namespace kestrum::cli
