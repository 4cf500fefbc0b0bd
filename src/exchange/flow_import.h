#pragma once

#include "exchange/flow_series.h"
#include "sheet/flow_calculation.h"

#include <string_view>

namespace kestrum {

/// Fills a sheet from a flow test that another program wrote; the user chooses the file.
void Import_Flow_File(Session& session, Flow_Sheet& sheet);

/// The same from a file's bytes. Gives whether the file was read to its end and the sheet
/// calculated.
bool Read_Flow_Lines(Session& session, Flow_Sheet& sheet, Flow_Layout layout,
                     std::string_view bytes, Flow_Calculation calculate = Calc_Flow_Test);

} // namespace kestrum
