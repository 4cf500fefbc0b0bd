#include "cli/graph_run.h"

#include "cli/compare_output.h"
#include "cli/graph_session.h"
#include "cli/line_text.h"
#include "cli/standard_streams.h"

namespace kestrum::cli {

namespace {

/// The curves of two tests stand over one axis, whose numbers are those of the first.
bool X_Columns_Differ(const Compare_Screen& table) {
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        if (table.Text101(row).Text() != table.Text106(row).Text()) {
            return true;
        }
    }
    return false;
}

} // namespace

int Run_Graph(const Graph_Options& options, Painter& painter, std::ostream& errors) {
    Graph_Session session(options, errors);
    for (std::size_t index = 0; index < options.pairs.size(); ++index) {
        if (!session.Load(options.pairs[index]) ||
            !session.Press(index == 0 ? "Command2" : "Graph_Plus")) {
            return 1;
        }
        if (X_Columns_Differ(session.Table())) {
            session.Tell(options.pairs[index].to,
                         "its X column differs from that of " + options.pairs[index].from);
        }
    }
    if (options.extras.settings.dots_per_inch || options.extras.settings.paper) {
        painter.Use(options.extras.settings);
    }
    return session.Save(painter, options.output) ? 0 : 1;
}

int Run_Compare(const Graph_Options& options, std::ostream& out, std::ostream& errors) {
    Graph_Session session(options, errors);
    if (!session.Load(options.pairs.front()) || !session.Press("Command1")) {
        return 1;
    }
    const std::string table =
        options.csv ? Compare_Csv(session.Table()) : Compare_Text(session.Table());
    out << (options.to_terminal ? Escaped(table, "\n") : table);
    Finish(out, "compare: the table cannot be written");
    return 0;
}

} // namespace kestrum::cli
