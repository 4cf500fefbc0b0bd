#pragma once

#include "sheet/flow_calculation.h"

#include <string_view>

namespace kestrum {

/// Fills the lift rows of a sheet from a table that the user chooses.
void Import_CSV_File(Session& session, Flow_Sheet& sheet);

/// The same from a file's bytes. A file that cannot be taken whole is refused in a box and changes
/// nothing. Gives whether the rows were taken and the sheet calculated.
bool Read_CSV_Rows(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                   Flow_Calculation calculate = Calc_Flow_Test);

} // namespace kestrum
