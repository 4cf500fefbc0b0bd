#include "application/commands.h"
#include "files/report_config.h"
#include "output/text_report.h"

#include <array>

namespace kestrum {

namespace {

/// A routine that asks for the report screen.
template <auto routine>
void Run_On_Choice(Session& session, Control& /*control*/) {
    static_cast<void>(routine(session, session.Form70()));
}

template <bool ticked>
void Tick_All(Session& session, Control& /*control*/) {
    Tick_All_For_Report(session.Form70(), ticked);
}

constexpr auto report_commands = std::to_array<Command>({
    {"Command2", Run<Create_Text_Report>},
    {"Load", Run_On_Choice<Load_Report_Config>},
    {"Save", Run_On_Choice<Save_Report_Config>},
    {"Clear", Tick_All<false>},
    {"Select", Tick_All<true>},
    {"Command5", Capture_Owner},
    {"subend", Hide_Owner},
});

} // namespace

std::span<const Command> Report_Commands() {
    return report_commands;
}

} // namespace kestrum
