#include "platform/program_module.h"

#include "platform/program_files.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace kestrum {

std::string Program_Folder() {
    // A program that was started by its bare name does not know its place otherwise.
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path().string();
}

std::string Name_Of_Own_Folder() {
    return "kestrum";
}

Module_Routine Routine_Of_Module(std::string_view module, const char* routine) {
    const std::string name = std::string(module) + ".so";
    // By its whole path: a bare name is looked for in the system's folders.
    const std::filesystem::path path = Program_File(Program_Part::Library, name);
    if (path.empty()) {
        return {.failure = name + " is missing"};
    }
    void* const loaded = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const found = loaded == nullptr ? nullptr : ::dlsym(loaded, routine);
    return {.routine = found, .failure = found == nullptr ? ::dlerror() : ""};
}

} // namespace kestrum
