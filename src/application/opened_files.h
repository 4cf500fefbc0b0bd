#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

// Files that come to the program from outside: from its command line, from a second start, or by a
// drop on a window.

/// Whether a file's name says that it goes into `Main`.
[[nodiscard]] bool Is_Engine_File(std::string_view path);

/// The first sheet into which nothing was loaded and on which nothing stands but what it began
/// with, null when there is none.
[[nodiscard]] Flow_Sheet* First_Free_Sheet(Session& session);

/// Loads `Main` from a file and shows it. A file that cannot be read is told in a box.
void Open_Engine_File(Session& session, const std::string& path);

/// Loads a test of any format that its ending tells, else a flow data file, into a sheet and shows
/// it. A file that cannot be read is told in a box.
void Open_Test(Session& session, Flow_Sheet& sheet, const std::string& path);

} // namespace kestrum
