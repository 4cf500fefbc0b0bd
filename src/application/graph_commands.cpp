#include "application/commands.h"
#include "output/document_printing.h"
#include "output/graph_logo.h"
#include "output/graph_saving.h"
#include "presentation/graph_options.h"

#include <array>

namespace kestrum {

namespace {

void Pick_Line_Colour(Session& session, Control& /*control*/) {
    if (const auto colour = Get_Color(session)) {
        session.settings.draw_line_color = *colour;
    }
}

void Pick_Line_Width(Session& session, Control& control) {
    session.settings.draw_line_width = session.numbers.Read_Integer(control);
}

void Print_Owner(Session& session, Control& control) {
    Print_Screen(session, control.Owner());
}

constexpr auto graph_commands = std::to_array<Command>({
    {"Logo", Run<Toggle_Logo>},
    {"Command4", Pick_Line_Colour},
    {"Combo1", Pick_Line_Width},
    {"Command3", Run<Save_Graph>},
    {"Command2", Print_Owner},
    {"Command5", Capture_Owner},
    {"Command1", Hide_Owner},
});

} // namespace

std::span<const Command> Graph_Commands() {
    return graph_commands;
}

} // namespace kestrum
