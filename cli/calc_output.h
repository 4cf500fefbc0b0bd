#pragma once

#include "cli/calc_options.h"
#include "cli/calc_sheet.h"

#include <string>
#include <string_view>

namespace kestrum::cli {

/// A file and the sheet that has just read it.
struct Calc_Result {
    std::string_view file;
    bool loaded;
    const Calc_Sheet& sheet;
};

/// Adds what stands above all files.
void Append_Head(std::string& out, Calc_Format format);

/// Adds the figures of a file.
void Append_Result(std::string& out, Calc_Format format, const Calc_Result& result);

} // namespace kestrum::cli
