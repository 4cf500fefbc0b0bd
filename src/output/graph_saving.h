#pragma once

#include "core/session.h"
#include "drawing/painter.h"

#include <optional>
#include <string_view>

namespace kestrum {

/// The logo over the graph while it is on.
[[nodiscard]] std::optional<Placed_Logo> Shown_Logo(Session& session);

/// The format that a file's name asks for: PNG, SVG or PDF by its ending, else BMP.
[[nodiscard]] Picture_Format Format_For(std::string_view path);

/// What to propose for a file about the two tests that were compared last.
[[nodiscard]] std::string Proposal_For_Compared(const Session& session, std::string_view ending);

/// Writes the graph with its logo under a name. Raises 481 without a painter, and what painting
/// and writing raise.
void Write_Graph(Session& session, const std::string& path);

/// Saves the graph under the name that the user chooses. Whatever keeps it from that, a cancel
/// included, is told in a box.
void Save_Graph(Session& session);

} // namespace kestrum
