#pragma once

#include "core/session.h"
#include "graph/graph_state.h"

namespace kestrum {

/// The columns of the compare table that belong to one of the two tests.
struct Test_Columns {
    const Control_Array& x;
    const Control_Array& intake;
    const Control_Array& exhaust;
    const Control_Array& derived_intake;
    const Control_Array& derived_exhaust;
    /// Columns that the port energy looks at for the text "0".
    const Control_Array& energy_gate_intake;
    const Control_Array& energy_gate_exhaust;
    const std::string& label;
};

[[nodiscard]] inline Test_Columns From_Columns(Session& session) {
    const Compare_Screen& table = session.Form50();
    return {table.Text101, table.Text102, table.Text103, table.Text107,
            table.Text108, table.Text102, table.Text103, Graph_Of(session).from_label};
}

[[nodiscard]] inline Test_Columns To_Columns(Session& session) {
    const Compare_Screen& table = session.Form50();
    // The crossed gates are wanted: the intake looks at the To exhaust, the exhaust at the From.
    return {table.Text106, table.Text104, table.Text105, table.Text109,
            table.Text110, table.Text105, table.Text103, Graph_Of(session).to_label};
}

} // namespace kestrum
