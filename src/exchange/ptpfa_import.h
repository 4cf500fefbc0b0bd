#pragma once

#include "sheet/flow_calculation.h"

#include <string_view>

namespace kestrum {

/// Fills a sheet, and the engine's fields of `Main`, from a file of the port flow program that the
/// user chooses.
void Import_PTPFA_File(Session& session, Flow_Sheet& sheet);

/// The same from a file's bytes; the ending of the session's `file_path` tells the layout. Gives
/// whether the file was read to its end and the sheet calculated.
bool Read_PTPFA_Lines(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                      Flow_Calculation calculate = Calc_Flow_Test);

} // namespace kestrum
