#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Asks for a file, starting in the program's folder. Raises 75 when the user cancels, so that a
/// cancel takes the way of every failure before the file.
[[nodiscard]] Chosen_Path Choice_Of_File(Session& session, Chooser_Mode mode,
                                         std::string_view filter, int filter_index);

/// The path alone.
[[nodiscard]] std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                                      int filter_index);

/// The path of a file that goes by its name, which is meant in the program's folder unless it
/// begins at the root. Names that came through lower-casing or the decimal switch are still found.
[[nodiscard]] std::string Path_Of_Named_File(const Session& session, std::string_view name);

/// Reads the file that goes by a name, or without one the file that the user chooses; `File_Path`
/// takes its path, also when it cannot be read. Raises the errors of the chooser, which leaves
/// `File_Path`, and of reading.
[[nodiscard]] std::string Bytes_Of_File(Session& session, std::string_view name,
                                        std::string_view filter);

/// Writes a file for the user and notes that it was written. Raises the errors of writing.
void Keep_File(Session& session, const std::string& path, std::string_view bytes);

} // namespace kestrum
