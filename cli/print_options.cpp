#include "cli/print_options.h"

#include "base/text.h"
#include "cli/argument_reader.h"
#include "cli/graph_extras.h"
#include "cli/line_text.h"
#include "cli/usage_texts.h"
#include "graph/compare_types.h"

#include <string_view>

namespace kestrum::cli {

namespace {

/// What the arguments say, before it is known whether they fit together.
struct Arguments {
    Print_Options options{};
    std::optional<int> type{};
};

void Take_Clock(Clock& clock, Argument_Reader& reader) {
    if (reader.Is("--now")) {
        if (!clock.Stop_At(reader.Value())) {
            throw reader.Wrong_Call("--now wants YYYY-MM-DDTHH:MM:SS");
        }
    } else if (reader.Is("--locale")) {
        const std::string name(reader.Value());
        if (!clock.Speak(name)) {
            throw reader.Wrong_Call("--locale: the system has no locale " + Quoted(name));
        }
    } else {
        throw reader.Unknown_Option();
    }
}

void Take_Look(Print_Options& options, Argument_Reader& reader) {
    if (reader.Is("--company")) {
        options.company = reader.Value();
    } else if (reader.Is("--logo")) {
        options.logo = reader.Value();
    } else if (reader.Is("--head")) {
        options.head = reader.Choice({"left", "centre", "right"});
    } else if (reader.Is("--paper")) {
        options.paper = Paper_From(reader);
    } else {
        Take_Clock(options.clock, reader);
    }
}

void Take_Option(Arguments& read, Argument_Reader& reader) {
    if (reader.Is("--compare")) {
        read.options.compares = true;
    } else if (reader.Is("--metric")) {
        read.options.metric = true;
    } else if (reader.Is("-o")) {
        read.options.output = reader.Value();
    } else if (reader.Is("--type")) {
        read.type = reader.Whole_Value(0, compare_type_count - 1);
    } else if (reader.Is("--x")) {
        read.options.x_column = reader.Choice({"lift", "intake", "exhaust"});
    } else {
        Take_Look(read.options, reader);
    }
}

} // namespace

Print_Options Print_Options_From(std::span<const char* const> arguments) {
    Arguments read;
    Argument_Reader reader("print", usage::print, arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(read, reader);
        } else {
            read.options.files.push_back(reader.File());
        }
    }
    if (read.options.output.empty()) {
        throw reader.Wrong_Call("-o is missing");
    }
    if (!Lower_Copy(read.options.output).ends_with(".pdf")) {
        throw reader.Wrong_Call("-o wants a file that ends in .pdf");
    }
    if (read.options.files.empty()) {
        throw reader.Wrong_Call("a file is missing");
    }
    if (read.options.compares && (read.options.files.size() != 2 || !read.type)) {
        throw reader.Wrong_Call("--compare wants two files and --type");
    }
    read.options.type = read.type.value_or(0);
    return std::move(read.options);
}

} // namespace kestrum::cli
