#pragma once

#include "sheet/flow_calculation.h"

#include <string>
#include <string_view>

namespace kestrum {

/// The inputs of a sheet as the text of a `.dat` file, one record a line.
[[nodiscard]] std::string Flow_File_Text(Session& session, const Flow_Sheet& sheet);

/// Saves a sheet under the name that the user chooses, and tells how it went.
void Save_Flow_File(Session& session, Flow_Sheet& sheet);

/// Loads a sheet. An empty name asks the user; any other is meant in the program's folder.
void Load_Flow_File(Session& session, Flow_Sheet& sheet, std::string_view name);

/// Reads a file's bytes into a sheet and calculates it, with all its boxes but the closing count.
/// Gives whether the file was read to its end.
bool Read_Flow_Records(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                       Flow_Calculation calculate = Calc_Flow_Test);

/// Puts a rescued copy into a sheet without calculating it. Unless the copy was written with
/// another separator, every text comes back as it stood. Raises what the reading raises.
void Restore_Flow_Inputs(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                         bool same_separator);

} // namespace kestrum
