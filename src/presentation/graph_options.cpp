#include "presentation/graph_options.h"

#include "core/settings.h"

namespace kestrum {

std::optional<Colour> Get_Color(Session& session) {
    session.answers.colour.clear();
    const auto chosen = session.dialogs.Choose_Colour();
    if (!chosen) {
        session.Message("No Color Selected");
        return std::nullopt;
    }
    const Colour colour = Colour_Of(*chosen);
    session.answers.colour = session.numbers.Plain(colour);
    return colour;
}

void Choose_Graph_Font_Colour(Session& session) {
    if (const auto colour = Get_Color(session)) {
        Look look = session.Form60().Picture1.Present_Look();
        look.text_colour = *colour;
        session.Form60().Picture1.Set_Look(look);
    }
}

void Choose_Grid_Colour(Session& session) {
    if (const auto colour = Get_Color(session)) {
        session.settings.grid.colour = *colour;
        session.settings.grid.on = true;
    }
}

void Set_Grid_Style(Session& session, Line_Style style) {
    session.settings.grid.style = style;
    session.settings.grid.on = true;
}

void Switch_Grid_Off(Session& session) {
    session.settings.grid.style = Line_Style::Solid;
    session.settings.grid.on = false;
}

} // namespace kestrum
