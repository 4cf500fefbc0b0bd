#include "cli/calc_options.h"

#include "cli/argument_reader.h"
#include "cli/usage_texts.h"

namespace kestrum::cli {

namespace {

void Take_Option(Argument_Reader& reader, Calc_Options& options) {
    if (reader.Is("--metric")) {
        options.metric = true;
    } else if (Takes_Format(reader, options.format)) {
        return;
    } else if (reader.Is("--files-from")) {
        if (reader.Value() != "-") {
            throw reader.Wrong_Call("--files-from reads standard input alone: --files-from -");
        }
        options.names_from_input = true;
    } else {
        throw reader.Unknown_Option();
    }
}

} // namespace

Calc_Options Calc_Options_From(std::span<const char* const> arguments) {
    Calc_Options options;
    Argument_Reader reader("calc", usage::calc, arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(reader, options);
        } else {
            options.files.push_back(reader.File());
        }
    }
    if (options.files.empty() && !options.names_from_input) {
        throw reader.Wrong_Call("no file is named");
    }
    return options;
}

} // namespace kestrum::cli
