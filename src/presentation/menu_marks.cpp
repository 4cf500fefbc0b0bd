#include "presentation/menu_marks.h"

#include <array>

namespace kestrum {

namespace {

template <Alignment mode>
bool Is_Aligned(const Session& session) {
    return session.numbers.align_mode == mode;
}

template <Line_Style style>
bool Has_Grid(const Session& session) {
    return session.settings.grid.on && session.settings.grid.style == style;
}

struct Choice {
    std::string_view entry;
    bool (*is_in_force)(const Session& session);
};

constexpr std::array<Choice, 7> choices{{
    {"AligLeft", Is_Aligned<Alignment::Left>},
    {"AligCenter", Is_Aligned<Alignment::Center>},
    {"AligRight", Is_Aligned<Alignment::Right>},
    {"Grid_Long", Has_Grid<Line_Style::Solid>},
    {"Grid_Dash", Has_Grid<Line_Style::Dash>},
    {"Grid_Dot", Has_Grid<Line_Style::Dot>},
    {"Grid_None", [](const Session& session) { return !session.settings.grid.on; }},
}};

} // namespace

void Mark_Choices(Session& session) {
    for (const Choice& choice : choices) {
        if (Control* const entry = session.Main().Find(choice.entry, std::nullopt)) {
            entry->Set_Value(choice.is_in_force(session) ? 1 : 0);
        }
    }
}

} // namespace kestrum
