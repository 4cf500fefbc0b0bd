#pragma once

#include <string>
#include <string_view>

namespace kestrum {

/// The folder that the running program lies in.
[[nodiscard]] std::string Program_Folder();

/// How the program's own folder is called among those of the user's programs.
[[nodiscard]] std::string Name_Of_Own_Folder();

/// A routine that a module of the program holds, to be taken for the type it has there.
struct Module_Routine {
    void* routine = nullptr;
    /// Why there is none, in the words of the system.
    std::string failure{};
};

/// Loads a module that comes with the program (its name comes without an extension), and finds a
/// routine in it. It stays loaded.
[[nodiscard]] Module_Routine Routine_Of_Module(std::string_view module, const char* routine);

} // namespace kestrum
