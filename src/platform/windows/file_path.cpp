#include "platform/file_path.h"

#include "platform/windows/system_path.h"

namespace kestrum {

// Not by the library's own conversions, which raise what is no letter.

std::filesystem::path File_Path(std::string_view path) {
    return Wide_Text(path);
}

std::string Text_Of(const std::filesystem::path& path) {
    return Narrow_Text(path.native());
}

} // namespace kestrum
