#pragma once

#include <string>
#include <string_view>

namespace kestrum {

/// The name of the file that a save writes before it takes the target's place:
/// `.NAME.kestrum-PROCESS-START-SYSTEM-N`. It tells whose it is, so that what a killed program has
/// left can be told from what a living one is writing.
[[nodiscard]] std::string Passing_Name(std::string_view target_name, int number);

/// The name of the copy that a save makes of a file that it has to write in place:
/// `NAME.kestrum-old-PROCESS-START-SYSTEM-N`. It is for the user to find, and nobody removes it but
/// the save that made it.
[[nodiscard]] std::string Safety_Copy_Name(std::string_view target_name, int number);

/// Removes from a folder what saves of dead programs have left, and nothing else.
void Remove_Left_Overs(const std::string& folder);

} // namespace kestrum
