#pragma once

#include "cli/argument_reader.h"

namespace kestrum::cli {

enum class Output_Format { Text, Csv, Json };

/// Takes "--csv" or "--json"; false for any other argument. Raises `Usage_Error` for both.
[[nodiscard]] inline bool Takes_Format(const Argument_Reader& reader, Output_Format& format) {
    if (!reader.Is("--csv") && !reader.Is("--json")) {
        return false;
    }
    const Output_Format asked = reader.Is("--csv") ? Output_Format::Csv : Output_Format::Json;
    if (format != Output_Format::Text && format != asked) {
        throw reader.Wrong_Call("--csv and --json exclude each other");
    }
    format = asked;
    return true;
}

} // namespace kestrum::cli
