#include "platform/file_path.h"

namespace kestrum {

std::filesystem::path File_Path(std::string_view path) {
    return path;
}

std::string Text_Of(const std::filesystem::path& path) {
    return path.string();
}

} // namespace kestrum
