#include "presentation/alignment.h"

#include "presentation/styled_boxes.h"

#include <utility>

namespace kestrum {

void Apply_Alignment(Session& session) {
    const Alignment alignment = session.numbers.align_mode;
    session.For_Each_Loaded([alignment](Screen& screen) {
        if (screen.Kind() == Screen_Kind::Graph || screen.Kind() == Screen_Kind::Report) {
            return;
        }
        for (Control& control : screen.Controls()) {
            if (Is_Styled_Box(control)) {
                Look look = control.Present_Look();
                look.alignment = alignment;
                control.Set_Look(look);
            }
        }
    });
}

std::optional<bool> Is_In_Force(const Session& session, std::string_view entry) {
    const Grid_Setting& grid = session.settings.grid;
    const auto aligned = [&session](Alignment alignment) {
        return session.numbers.align_mode == alignment;
    };
    const auto drawn = [&grid](Line_Style style) { return grid.on && grid.style == style; };
    const std::pair<std::string_view, bool> entries[] = {// NOLINT(*-avoid-c-arrays)
                                                         {"AligLeft", aligned(Alignment::Left)},
                                                         {"AligCenter", aligned(Alignment::Center)},
                                                         {"AligRight", aligned(Alignment::Right)},
                                                         {"Grid_Long", drawn(Line_Style::Solid)},
                                                         {"Grid_Dash", drawn(Line_Style::Dash)},
                                                         {"Grid_Dot", drawn(Line_Style::Dot)},
                                                         {"Grid_None", !grid.on}};
    for (const auto& [name, in_force] : entries) {
        if (name == entry) {
            return in_force;
        }
    }
    return std::nullopt;
}

} // namespace kestrum
