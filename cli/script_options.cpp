#include "cli/script_options.h"

#include "application/version.h"
#include "cli/argument_reader.h"
#include "cli/line_text.h"
#include "platform/file_path.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <string_view>

namespace kestrum::cli {

namespace {

namespace fs = std::filesystem;

std::string Program_Folder(std::string_view given) {
    const fs::path folder = fs::absolute(File_Path(given)).lexically_normal();
    if (!fs::is_directory(folder)) {
        throw Usage_Error("--folder: there is no folder " + Quoted(given));
    }
    const bool ends_with_separator = !folder.has_filename() && folder != folder.root_path();
    return Text_Of(ends_with_separator ? folder.parent_path() : folder);
}

/// Takes a number off the front of a text.
int Leading_Number(std::string_view& text, std::string_view option) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || number <= 0) {
        throw Usage_Error(std::string(option) + ": a number is missing");
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

void Leading_Mark(std::string_view& text, char mark, std::string_view option) {
    if (text.empty() || text.front() != mark) {
        throw Usage_Error(std::string(option) + ": '" + mark + "' is missing");
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
        throw Usage_Error("--display: wanted is WxH@DPI");
    }
    return display;
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

void Take_Option(Argument_Reader& reader, Script_Options& options) {
    Surroundings& around = options.surroundings;
    if (reader.Is("--rescue")) {
        options.rescue = true;
    } else if (reader.Is("--folder")) {
        around.folder = Program_Folder(reader.Value());
    } else if (reader.Is("--point")) {
        around.decimal_point = reader.Value();
        if (around.decimal_point != "." && around.decimal_point != ",") {
            throw reader.Wrong_Call("--point: wanted is . or ,");
        }
    } else if (reader.Is("--display")) {
        around.display = Display_From(reader.Value());
    } else if (reader.Is("--args")) {
        around.command_line = reader.Value();
    } else if (reader.Is("--now")) {
        if (!around.clock.Stop_At(reader.Value())) {
            throw reader.Wrong_Call("--now: wanted is YYYY-MM-DDTHH:MM:SS");
        }
    } else if (reader.Is("--printers")) {
        options.printers = Printers_From(reader.Value());
    } else if (reader.Is("--locale")) {
        const std::string name(reader.Value());
        if (name.empty() || !around.clock.Speak(name)) {
            throw reader.Wrong_Call("--locale: the system has no locale " + Quoted(name));
        }
    } else {
        throw reader.Unknown_Option();
    }
}

} // namespace

Script_Options Options_From(std::span<const char* const> arguments) {
    Script_Options options;
    options.surroundings.version = Program_Version();
    options.surroundings.folder = Program_Folder(".");
    Argument_Reader reader("", "", arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(reader, options);
        } else if (options.file.empty()) {
            options.file = reader.Text();
        } else {
            throw reader.Wrong_Call("more than one script: " + Quoted(reader.Text()));
        }
    }
    if (options.file.empty()) {
        throw reader.Wrong_Call("usage: kestrum-cli script [OPTIONS] FILE");
    }
    return options;
}

} // namespace kestrum::cli
