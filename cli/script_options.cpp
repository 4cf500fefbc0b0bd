#include "cli/script_options.h"

#include "application/version.h"
#include "cli/script_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <string_view>

namespace kestrum::cli {

namespace {

namespace fs = std::filesystem;

std::string Quoted(std::string_view text) {
    return "'" + std::string(text) + "'";
}

std::string Program_Folder(std::string_view given) {
    const fs::path folder = fs::absolute(given).lexically_normal();
    if (!fs::is_directory(folder)) {
        throw Script_Error("--folder: there is no folder " + Quoted(given));
    }
    const bool ends_with_separator = !folder.has_filename() && folder != folder.root_path();
    return (ends_with_separator ? folder.parent_path() : folder).string();
}

/// Takes a number off the front of a text.
int Leading_Number(std::string_view& text, std::string_view option) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || number <= 0) {
        throw Script_Error(std::string(option) + ": a number is missing");
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

void Leading_Mark(std::string_view& text, char mark, std::string_view option) {
    if (text.empty() || text.front() != mark) {
        throw Script_Error(std::string(option) + ": '" + mark + "' is missing");
    }
    text.remove_prefix(1);
}

Display Display_From(std::string_view text) {
    Display display;
    display.width = Leading_Number(text, "--display");
    Leading_Mark(text, 'x', "--display");
    display.height = Leading_Number(text, "--display");
    Leading_Mark(text, '@', "--display");
    display.dpi = Leading_Number(text, "--display");
    if (!text.empty()) {
        throw Script_Error("--display: wanted is WxH@DPI");
    }
    return display;
}

/// YYYY-MM-DDTHH:MM:SS.
void Check_Moment(std::string_view text) {
    constexpr std::string_view pattern = "0000-00-00T00:00:00";
    const bool fits =
        text.size() == pattern.size() &&
        std::equal(text.begin(), text.end(), pattern.begin(), [](char given, char wanted) {
            return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
        });
    if (!fits) {
        throw Script_Error("--now: wanted is YYYY-MM-DDTHH:MM:SS");
    }
}

/// Names between commas.
std::vector<std::string> Printers_From(std::string_view text) {
    std::vector<std::string> names;
    while (!text.empty()) {
        const std::string_view name = text.substr(0, text.find(','));
        names.emplace_back(name);
        text.remove_prefix(std::min(name.size() + 1, text.size()));
    }
    return names;
}

void Take_Option(Script_Options& options, std::string_view name, std::string_view value) {
    if (name == "--folder") {
        options.surroundings.folder = Program_Folder(value);
    } else if (name == "--point") {
        if (value != "." && value != ",") {
            throw Script_Error("--point: wanted is . or ,");
        }
        options.surroundings.decimal_point = value;
    } else if (name == "--display") {
        options.surroundings.display = Display_From(value);
    } else if (name == "--args") {
        options.surroundings.command_line = value;
    } else if (name == "--now") {
        Check_Moment(value);
    } else if (name == "--printers") {
        options.printers = Printers_From(value);
    } else if (name != "--locale") {
        throw Script_Error("unknown option " + Quoted(name));
    }
}

} // namespace

Script_Options Options_From(std::span<const char* const> arguments) {
    Script_Options options;
    options.surroundings.version = Program_Version();
    options.surroundings.folder = Program_Folder(".");
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string_view argument = arguments[at];
        if (!argument.starts_with("--")) {
            if (!options.file.empty()) {
                throw Script_Error("more than one script: " + Quoted(argument));
            }
            options.file = argument;
            continue;
        }
        if (argument == "--rescue") {
            options.rescue = true;
            continue;
        }
        if (at + 1 == arguments.size()) {
            throw Script_Error(Quoted(argument) + " wants a value");
        }
        ++at;
        Take_Option(options, argument, arguments[at]);
    }
    if (options.file.empty()) {
        throw Script_Error("usage: kestrum-cli script [OPTIONS] FILE");
    }
    return options;
}

} // namespace kestrum::cli
