#pragma once

#include "core/session.h"

#include <optional>

namespace kestrum {

/// Asks for a colour, as a blue-green-red number; a cancel is told in a box.
[[nodiscard]] std::optional<Colour> Get_Color(Session& session);

/// Asks for the colour of the texts on the graph.
void Choose_Graph_Font_Colour(Session& session);

/// Asks for the colour of the grid, and switches it on.
void Choose_Grid_Colour(Session& session);

/// Lines of the grid, and switches it on.
void Set_Grid_Style(Session& session, Line_Style style);

/// No grid; its colour stays.
void Switch_Grid_Off(Session& session);

} // namespace kestrum
