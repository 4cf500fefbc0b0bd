#pragma once

#include <filesystem>
#include <string_view>

namespace kestrum {

/// What comes with the program besides its executables.
enum class Program_Part { Library, Documents };

/// A file that comes with the program: in the folder of a build beside the executable, else at its
/// place in an installation, wherever that was put. Empty when it is at neither.
[[nodiscard]] std::filesystem::path Program_File(Program_Part part, std::string_view name);

} // namespace kestrum
