#include "platform/program_module.h"

#include "platform/program_files.h"
#include "platform/windows/system_path.h"

#include <filesystem>
#include <windows.h>

namespace kestrum {

std::string Program_Folder() {
    constexpr std::size_t longest_path = 32768;
    std::wstring program(longest_path, L'\0');
    program.resize(
        ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return Narrow_Text(program.substr(0, program.find_last_of(L'\\')));
}

std::string Name_Of_Own_Folder() {
    return "Kestrum";
}

Module_Routine Routine_Of_Module(std::string_view module, const char* routine) {
    const std::string name = std::string(module) + ".dll";
    // By its whole path: a bare name is looked for in the system's folders.
    const std::filesystem::path path = Program_File(Program_Part::Library, name);
    if (path.empty()) {
        return {.failure = name + " is missing"};
    }
    const HMODULE loaded = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    const FARPROC found = loaded == nullptr ? nullptr : ::GetProcAddress(loaded, routine);
    if (found == nullptr) {
        return {.failure = Words_Of_Failure(::GetLastError())};
    }
    return {.routine = reinterpret_cast<void*>(found)};
}

} // namespace kestrum
