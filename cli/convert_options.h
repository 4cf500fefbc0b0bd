#pragma once

#include "cli/usage_error.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum::cli {

enum class Test_Format { Ptpfa, Flw, Dfw, Dyn, Dym, Csv, Dat };

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

/// The format that goes with a file's ending, nothing for an unknown one.
[[nodiscard]] std::optional<Test_Format> Format_Of_Ending(std::string_view path);

/// The ending of a format that can be written: "dat".
[[nodiscard]] std::string_view Ending_Of_Format(Test_Format format);

} // namespace kestrum::cli
