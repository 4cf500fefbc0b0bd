#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Asks for a file, starting in the program's folder. Raises 75 when the user cancels, so that a
/// cancel takes the way of every failure before the file.
[[nodiscard]] std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                                      int filter_index);

/// The path of a file that goes by its name: one with a folder as it stands, any other in the
/// program's folder. Names that came through lower-casing or the decimal switch are still found.
[[nodiscard]] std::string Path_Of_Named_File(const Session& session, std::string_view name);

} // namespace kestrum
