#pragma once

#include <optional>
#include <string>

namespace kestrum {

/// In pixels.
struct Picture_Size {
    int width = 0;
    int height = 0;
};

/// Size of a picture that the graph screen can show, from its header: BMP, GIF, JPEG or PNG of a
/// size that a logo can have. Nothing for any other file.
[[nodiscard]] std::optional<Picture_Size> Size_Of_Picture_File(const std::string& path);

} // namespace kestrum
