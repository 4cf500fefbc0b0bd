#pragma once

#include "cli/usage_error.h"
#include "exchange/test_formats.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kestrum::cli {

/// How `kestrum-cli convert` was called.
struct Convert_Options {
    std::vector<std::string> files;
    /// Whether further file names come from standard input, one a line.
    bool names_from_input = false;
    /// A file, or the folder that takes all files.
    std::string output;
    bool into_folder = false;
    /// Nothing: by the ending of each file.
    std::optional<Test_Format> from{};
    Test_Format to = Test_Format::Dat;
    bool for_engine_analyzer = false;
    /// Whether the numbers of the files are metric.
    bool metric = false;
    /// Whether a file that is there already is replaced.
    bool force = false;
};

/// Reads the arguments behind "convert". Raises `Usage_Error` for a call that cannot be used.
[[nodiscard]] Convert_Options Convert_Options_From(std::span<const char* const> arguments);

/// Says that several files cannot go into one.
[[nodiscard]] Usage_Error Several_Files_Refused(const std::string& output);

} // namespace kestrum::cli
