#include "platform/picture_file.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace kestrum {

bool Is_Picture_File(const std::string& path) {
    static constexpr std::array<std::string_view, 5> beginnings{"BM", "GIF87a", "GIF89a",
                                                                "\xFF\xD8\xFF", "\x89PNG\r\n"};
    std::ifstream file(path, std::ios::binary);
    std::array<char, 8> first{};
    file.read(first.data(), first.size());
    const std::string_view found(first.data(), static_cast<std::size_t>(file.gcount()));
    return std::ranges::any_of(
        beginnings, [found](std::string_view begin) { return found.starts_with(begin); });
}

} // namespace kestrum
