#include "application/commands.h"
#include "graph/compare_table.h"
#include "graph/graph_set_up.h"
#include "output/compare_print.h"

#include <array>

namespace kestrum {

namespace {

/// The four boxes are copied on every click.
template <bool Settings::*variable>
void Copy_Switch(Session& session, Control& control) {
    session.settings.*variable = Switch_Of(control.Value());
}

constexpr auto compare_commands = std::to_array<Command>({
    {"Command1", Run<Fill_Compare_Table>},
    {"Command2", Run<Draw_Fresh_Graph>},
    {"Graph_Plus", Run<Draw_Graph_Overlay>},
    {"Check1", Copy_Switch<&Settings::show_quarter_diameter_line>},
    {"Check2", Copy_Switch<&Settings::auto_x_lines>},
    {"Check3", Copy_Switch<&Settings::show_data_points>},
    {"Check4", Copy_Switch<&Settings::show_big>},
    {"Command3", Run<Print_Compare>},
    {"Command5", Capture_Owner},
    {"subend", Hide_Owner},
});

} // namespace

std::span<const Command> Compare_Commands() {
    return compare_commands;
}

} // namespace kestrum
