#include "cli/graph_run.h"

#include "cli/compare_output.h"
#include "cli/graph_session.h"
#include "cli/script_error.h"

namespace kestrum::cli {

int Run_Graph(const Graph_Options& options, Painter& painter, std::ostream& errors) {
    Graph_Session session(options, errors);
    for (std::size_t at = 0; at < options.pairs.size(); ++at) {
        if (!session.Load(options.pairs[at]) ||
            !session.Press(at == 0 ? "Command2" : "Graph_Plus")) {
            return 1;
        }
    }
    return session.Save(painter, options.output) ? 0 : 1;
}

int Run_Compare(const Graph_Options& options, std::ostream& out, std::ostream& errors) {
    Graph_Session session(options, errors);
    if (!session.Load(options.pairs.front()) || !session.Press("Command1")) {
        return 1;
    }
    out << (options.csv ? Compare_Csv(session.Table()) : Compare_Text(session.Table()));
    out.flush();
    if (!out) {
        throw Script_Error("compare: the table cannot be written");
    }
    return 0;
}

} // namespace kestrum::cli
