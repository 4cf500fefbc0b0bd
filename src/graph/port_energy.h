#pragma once

#include "graph/test_columns.h"

namespace kestrum {

/// Kinetic energy of the air in a test's ports at the velocities of one row of the table, into the
/// derived columns; blank where there is none. Raises the error of a cell that is no number.
void Port_Energy(Session& session, const Test_Columns& test, const Flow_Sheet& sheet, int row);

/// The same by port area and length.
void Port_Energy_Density(Session& session, const Test_Columns& test, const Flow_Sheet& sheet,
                         int row);

} // namespace kestrum
