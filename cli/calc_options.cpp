#include "cli/calc_options.h"

#include "cli/script_error.h"

#include <string_view>

namespace kestrum::cli {

namespace {

Script_Error Wrong_Call(const std::string& what) {
    return Script_Error("calc: " + what +
                        "\nusage: kestrum-cli calc [--metric] [--csv | --json] FILE.dat...\n"
                        "       kestrum-cli calc [--metric] [--csv | --json] --files-from -");
}

void Take_Format(Calc_Options& options, Calc_Format format) {
    if (options.format != Calc_Format::Text && options.format != format) {
        throw Wrong_Call("--csv and --json exclude each other");
    }
    options.format = format;
}

/// Gives whether the option has taken its value along.
bool Take_Option(Calc_Options& options, std::string_view name, std::string_view value) {
    if (name == "--metric") {
        options.metric = true;
    } else if (name == "--csv") {
        Take_Format(options, Calc_Format::Csv);
    } else if (name == "--json") {
        Take_Format(options, Calc_Format::Json);
    } else if (name == "--files-from") {
        if (value != "-") {
            throw Wrong_Call("--files-from reads standard input alone: --files-from -");
        }
        options.names_from_input = true;
        return true;
    } else {
        throw Wrong_Call("unknown option '" + std::string(name) + "'");
    }
    return false;
}

} // namespace

Calc_Options Calc_Options_From(std::span<const char* const> arguments) {
    Calc_Options options;
    bool only_files = false;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string_view argument = arguments[at];
        if (!only_files && argument == "--") {
            only_files = true;
        } else if (!only_files && argument.starts_with('-')) {
            const bool is_last = at + 1 == arguments.size();
            at += Take_Option(options, argument, is_last ? "" : arguments[at + 1]) ? 1U : 0U;
        } else if (argument.empty()) {
            throw Wrong_Call("a file name is empty");
        } else {
            options.files.emplace_back(argument);
        }
    }
    if (options.files.empty() && !options.names_from_input) {
        throw Wrong_Call("no file is named");
    }
    return options;
}

} // namespace kestrum::cli
