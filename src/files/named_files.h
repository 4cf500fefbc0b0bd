#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// The path of a file that goes by its name: one with a folder as it stands, any other in the
/// program's folder. Names that came through lower-casing or the decimal switch are still found.
[[nodiscard]] std::string Path_Of_Named_File(const Session& session, std::string_view name);

/// Reads the file that goes by a name, or without one the file that the user chooses; `File_Path`
/// takes its path. Raises the errors of the chooser and of reading, and leaves `File_Path` then.
[[nodiscard]] std::string Bytes_Of_File(Session& session, std::string_view name,
                                        std::string_view filter);

} // namespace kestrum
