#include "cli/report_options.h"

#include "cli/argument_reader.h"
#include "cli/line_text.h"
#include "cli/usage_texts.h"
#include "screens/flow_sheet.h"

#include <string_view>

namespace kestrum::cli {

namespace {

/// The place of the option's value, null for one that has none.
std::string* Value_Of(Report_Options& options, const Argument_Reader& reader) {
    if (reader.Is("--main")) {
        return &options.main_file;
    }
    if (reader.Is("--config")) {
        return &options.config_file;
    }
    return reader.Is("-o") ? &options.output : nullptr;
}

void Take_Option(Report_Options& options, Argument_Reader& reader) {
    if (reader.Is("--metric")) {
        options.metric = true;
    } else if (std::string* const value = Value_Of(options, reader)) {
        *value = reader.Value();
        if (value->empty()) {
            throw reader.Wrong_Call(Quoted(reader.Text()) + " wants a file");
        }
    } else {
        throw reader.Unknown_Option();
    }
}

} // namespace

Report_Options Report_Options_From(std::span<const char* const> arguments) {
    Report_Options options;
    Argument_Reader reader("report", usage::report, arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(options, reader);
        } else {
            options.files.push_back(reader.File());
        }
    }
    if (options.files.empty()) {
        throw reader.Wrong_Call("no test is named");
    }
    if (options.files.size() > sheet_count) {
        throw reader.Wrong_Call("a report takes up to five tests");
    }
    return options;
}

} // namespace kestrum::cli
