#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// What helps the user with the name of a file to be saved; see `Chooser`.
struct Name_Help {
    std::string proposal{};
    std::string completes{};
    std::string more_entries{};
};

/// Asks for a file, starting in the program's folder. Raises 75 when the user cancels, so that a
/// cancel takes the way of every failure before the file.
[[nodiscard]] Chosen_Path Choice_Of_File(Session& session, Chooser_Mode mode,
                                         std::string_view filter, int filter_index,
                                         const Name_Help& help = {});

/// The path alone.
[[nodiscard]] std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                                      int filter_index, const Name_Help& help = {});

/// What to propose for a file of a sheet: the path of the test that was loaded or saved there with
/// another ending, or a name made of its part number.
[[nodiscard]] std::string Proposal_For(const Session& session, const Flow_Sheet& sheet,
                                       std::string_view ending);

/// What to propose for a file about one test or two, by their part numbers: "E7TE and GT40P.bmp".
/// Empty where neither has one.
[[nodiscard]] std::string Proposal_For_Tests(std::string_view one, std::string_view other,
                                             std::string_view ending);

/// The path of a file that goes by its name, which is meant in the program's folder unless it
/// begins at the root. Names that came through lower-casing or the decimal switch are still found.
[[nodiscard]] std::string Path_Of_Named_File(const Session& session, std::string_view name);

/// Reads the file that goes by a name, or without one the file that the user chooses; `File_Path`
/// takes its path, also when it cannot be read. Raises the errors of the chooser, which leaves
/// `File_Path`, and of reading.
[[nodiscard]] std::string Bytes_Of_File(Session& session, std::string_view name,
                                        std::string_view filter);

/// What a face tells when a file of the user's has been written.
void Tell_Saved(Session& session, const std::string& path);

/// Writes a file for the user and notes that it was written. Raises the errors of writing.
void Keep_File(Session& session, const std::string& path, std::string_view bytes);

} // namespace kestrum
