#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// The engine screen as the text of a `.dta` file, one record a line.
[[nodiscard]] std::string Main_File_Text(Session& session);

/// Calculates the engine and saves `Main` under the session's `file_path`; an empty one asks the
/// user. A failure is told in a box, and the old file stays whole. Gives whether it was saved.
bool Save_Main_File(Session& session);

/// Loads `Main`, and the flow tests that the file names. An empty name asks the user. Gives whether
/// the file was read to its end and the engine calculated.
bool Load_Main_File(Session& session, std::string_view name);

/// Brings back what the last exit wrote to the session's `file_path`. Nobody has loaded anything:
/// what the file does not name is neither told nor marked.
bool Load_Session_File(Session& session);

/// The same from a file's bytes.
bool Read_Main_Records(Session& session, std::string_view bytes);

/// Puts a rescued copy into `Main` without calculating it; the flow tests that it names are not
/// loaded. Raises what the reading raises.
void Restore_Main_Inputs(Session& session, std::string_view bytes, bool same_separator);

} // namespace kestrum
