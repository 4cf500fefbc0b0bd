#pragma once

#include "tests/temp_folder.h"

#include <string>

namespace kestrum {

/// Runs a line in the system's shell, in a folder. "CLI" at its beginning stands for the program of
/// the command line. Gives its status, -1 when it has not ended by itself.
[[nodiscard]] int Status_In_Shell(const Temp_Folder& folder, const std::string& line);

} // namespace kestrum
