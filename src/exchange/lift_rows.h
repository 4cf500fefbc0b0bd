#pragma once

#include "screens/flow_sheet.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Puts "0" into every input of the lift rows, and into the copy of the lifts. What was calculated
/// from them stands until the next calculation.
void Empty_Lift_Rows(Flow_Sheet& sheet);

/// Puts a lift into a row and into its copy. Raises 340 for a row that the sheet does not have.
void Put_Lift(Flow_Sheet& sheet, int row, std::string_view lift);

/// The last three characters of a file's name, in lower case; there need not be a point.
[[nodiscard]] std::string Ending_Of(std::string_view path);

} // namespace kestrum
