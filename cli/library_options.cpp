#include "cli/library_options.h"

#include "cli/line_text.h"
#include "cli/usage_texts.h"
#include "library/library_columns.h"

namespace kestrum::cli {

namespace {

void Take_Option(Argument_Reader& reader, Library_Options& options) {
    if (Takes_Format(reader, options.format)) {
        return;
    }
    if (reader.Is("--metric")) {
        options.metric_files = true;
    } else if (reader.Is("--where")) {
        options.where = Lower_Words(reader.Value());
    } else if (reader.Is("--sort")) {
        const std::string_view name = reader.Value();
        options.sort = Library_Column_Named(name);
        if (options.sort == nullptr) {
            throw reader.Wrong_Call("there is no column " + Quoted(name));
        }
    } else if (reader.Is("--jobs")) {
        options.jobs = static_cast<unsigned>(reader.Whole_Value(1, Argument_Reader::no_limit));
    } else {
        throw reader.Unknown_Option();
    }
}

} // namespace

Library_Options Library_Options_From(std::span<const char* const> arguments) {
    Library_Options options;
    options.jobs = Usual_Jobs();
    Argument_Reader reader("library", usage::library, arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(reader, options);
        } else if (options.folder.empty()) {
            options.folder = reader.File();
        } else {
            throw reader.Wrong_Call("one folder is read at a time");
        }
    }
    if (options.folder.empty()) {
        throw reader.Wrong_Call("no folder is named");
    }
    return options;
}

} // namespace kestrum::cli
