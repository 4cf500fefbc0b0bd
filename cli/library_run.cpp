#include "cli/library_run.h"

#include "cli/library_output.h"
#include "cli/line_text.h"
#include "cli/standard_streams.h"
#include "library/library_columns.h"

#include <algorithm>

namespace kestrum::cli {

int Run_Library(const Library_Options& options, std::ostream& out, std::ostream& errors) {
    Folder_Walk walk = Tests_Below(options.folder);
    if (!walk.is_there) {
        errors << Escaped(options.folder) + ": There is no such folder\n";
        return 1;
    }
    for (const std::string& problem : walk.problems) {
        errors << Escaped(problem) + "\n";
    }
    std::vector<Library_Entry> entries = Read_Library({.folder = options.folder,
                                                       .metric = options.metric_files,
                                                       .jobs = options.jobs,
                                                       .goes_on = {}},
                                                      std::move(walk.tests));
    const bool all_read =
        walk.problems.empty() && std::ranges::none_of(entries, [](const Library_Entry& entry) {
            return entry.problem.has_value();
        });
    if (!options.where.empty()) {
        std::erase_if(entries, [&](const Library_Entry& entry) {
            return !Holds_Words(entry, options.where);
        });
    }
    if (options.sort != nullptr) {
        Sort_Library(entries, *options.sort);
    }
    const std::string lines = Library_Lines(entries, options.format);
    const bool spells = options.to_terminal && options.format != Output_Format::Json;
    out << (spells ? Escaped(lines, "\n") : lines);
    Finish(out, "library: the list cannot be written");
    return all_read ? 0 : 1;
}

} // namespace kestrum::cli
