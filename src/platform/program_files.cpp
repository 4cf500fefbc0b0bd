#include "platform/program_files.h"

#include "platform/file_path.h"
#include "platform/program_module.h"

#include <initializer_list>
#include <system_error>

namespace kestrum {

std::filesystem::path Program_File(Program_Part part, std::string_view name) {
    namespace fs = std::filesystem;
    std::error_code fault;
    const fs::path here = File_Path(Program_Folder());
    const bool is_library = part == Program_Part::Library;
    const fs::path built = is_library ? here : here / "doc";
    const fs::path installed = here / (is_library ? KESTRUM_LIBRARIES : KESTRUM_DOCUMENTS);
    for (const fs::path& folder : {built, installed}) {
        if (fs::exists(folder / name, fault)) {
            return folder / name;
        }
    }
    return {};
}

} // namespace kestrum
