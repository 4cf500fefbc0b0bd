#pragma once

#include "core/session.h"

#include <string>

namespace kestrum {

/// Writes the lift rows of a sheet as a table under the name that the user chooses.
void Export_CSV_File(Session& session, const Flow_Sheet& sheet);

/// The table as text: a header, and a line for each row with a lift above 0; these are counted in
/// the session's `records_written`. Raises 13 for a text that is no number, 6 for one beyond
/// double.
[[nodiscard]] std::string CSV_File_Text(Session& session, const Flow_Sheet& sheet);

} // namespace kestrum
