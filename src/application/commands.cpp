#include "application/commands.h"

#include "output/screen_capture.h"

#include <algorithm>

namespace kestrum {

namespace {

std::span<const Command> Commands_Of(Screen_Kind kind) {
    switch (kind) {
    case Screen_Kind::Engine:
        return Engine_Commands();
    case Screen_Kind::Sheet:
        return Sheet_Commands();
    case Screen_Kind::Compare:
        return Compare_Commands();
    case Screen_Kind::Graph:
        return Graph_Commands();
    case Screen_Kind::Report:
        return Report_Commands();
    }
    return {};
}

} // namespace

Routine Routine_Of(const Control& control) {
    const auto commands = Commands_Of(control.Owner().Kind());
    const auto found = std::ranges::find(commands, control.Entry().array, &Command::control);
    return found == commands.end() ? nullptr : found->run;
}

void Hide_Owner(Session& session, Control& control) {
    session.Hide(control.Owner());
}

void Capture_Owner(Session& session, Control& control) {
    Save_Form_Jpg(session, control.Owner());
}

} // namespace kestrum
