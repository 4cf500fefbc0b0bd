#pragma once

#include "graph/compare_types.h"
#include "graph/graph_state.h"

namespace kestrum {

/// What an L/D graph shows of the two sides.
struct Shown_Sides {
    bool intake = true;
    bool exhaust = true;
};

[[nodiscard]] Shown_Sides Sides_Shown(const Compare_Screen& table);

/// Reads the X columns of the table into the series and sets the point counts: a row counts when
/// its X is not the text "0", and the zero-lift row always. `x_high` rises with them when wanted.
/// Raises the error of a cell that is no number.
void Read_X(Session& session, bool sets_limit);

/// Reads the Y columns that the type graphs. The limits rise and fall with them when wanted.
void Read_Y(Session& session, const Compare_Type& type, bool sets_limits);

/// Takes a first zero point off each test: the From test goes by its intake, the To test by its
/// exhaust; wanted.
void Drop_Zero_First_Point(Graph_State& graph);

/// Lowers the low limit to the lowest Y above 0.01.
void Find_Low_Y(Graph_State& graph);

} // namespace kestrum
