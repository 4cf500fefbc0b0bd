#include "cli/convert_options.h"

#include "cli/argument_reader.h"
#include "cli/line_text.h"
#include "cli/usage_texts.h"
#include "platform/file_path.h"

#include <filesystem>

namespace kestrum::cli {

namespace {

namespace fs = std::filesystem;

Test_Format Format_Of_Value(Argument_Reader& reader, bool to_write) {
    const std::string_view name = reader.Value();
    const std::optional<Test_Format> format = Format_Named(name);
    if (!format || (to_write && !Can_Be_Written(*format))) {
        throw reader.Wrong_Call("the format " + Quoted(name) + " is not known");
    }
    return *format;
}

/// What the arguments say, before it is known what lies at the output.
struct Arguments {
    Convert_Options options;
    std::optional<Test_Format> to{};
};

bool Take_Switch(Convert_Options& options, const Argument_Reader& reader) {
    if (reader.Is("--engine-analyzer")) {
        options.for_engine_analyzer = true;
    } else if (reader.Is("--metric")) {
        options.metric = true;
    } else if (reader.Is("--force")) {
        options.force = true;
    } else {
        return false;
    }
    return true;
}

void Take_Value(Arguments& read, Argument_Reader& reader) {
    if (reader.Is("-o")) {
        if (!read.options.output.empty()) {
            throw reader.Wrong_Call("-o comes twice");
        }
        read.options.output = reader.Value();
    } else if (reader.Is("--to")) {
        read.to = Format_Of_Value(reader, true);
    } else if (reader.Is("--from")) {
        read.options.from = Format_Of_Value(reader, false);
    } else if (reader.Is("--files-from")) {
        if (reader.Value() != "-") {
            throw reader.Wrong_Call("--files-from reads standard input alone: --files-from -");
        }
        read.options.names_from_input = true;
    } else {
        throw reader.Unknown_Option();
    }
}

Arguments Read_Arguments(Argument_Reader& reader) {
    Arguments read;
    while (reader.Next()) {
        if (!reader.Is_Option()) {
            read.options.files.push_back(reader.File());
        } else if (!Take_Switch(read.options, reader)) {
            Take_Value(read, reader);
        }
    }
    return read;
}

} // namespace

Usage_Error Several_Files_Refused(const std::string& output) {
    return Argument_Reader("convert", usage::convert, {})
        .Wrong_Call("several files need a folder that is there, and " + Quoted(output) +
                    " is none");
}

Convert_Options Convert_Options_From(std::span<const char* const> arguments) {
    Argument_Reader reader("convert", usage::convert, arguments);
    auto [options, to] = Read_Arguments(reader);
    if (options.files.empty() && !options.names_from_input) {
        throw reader.Wrong_Call("no file is named");
    }
    if (options.output.empty()) {
        throw reader.Wrong_Call("-o FILE or -o FOLDER is missing");
    }
    std::error_code unknown;
    options.into_folder = fs::is_directory(File_Path(options.output), unknown);
    if (!options.into_folder && (options.files.size() > 1 || options.output.ends_with('/'))) {
        throw Several_Files_Refused(options.output);
    }
    if (!to && !options.into_folder) {
        to = Format_Of_Ending(options.output);
    }
    if (!to || !Can_Be_Written(*to)) {
        throw reader.Wrong_Call("the format to write is not known: use --to");
    }
    options.to = *to;
    return options;
}

} // namespace kestrum::cli
