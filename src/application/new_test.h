#pragma once

#include "screens/flow_sheet.h"

#include <vector>

namespace kestrum {

/// What a new test on a sheet begins with.
enum class New_Test {
    Empty,         // only the lifts stay
    From_This_Head // the head stays, what was measured goes
};

/// Puts "0" into the number inputs, empties the texts and forgets the sheet's file. Gives the cells
/// that hold a zero now, which their checks would refuse though nobody has typed it.
std::vector<Control*> Begin_New_Test(Flow_Sheet& sheet, New_Test kind);

} // namespace kestrum
