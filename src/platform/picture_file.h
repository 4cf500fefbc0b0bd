#pragma once

#include <string>

namespace kestrum {

/// Whether a file is a picture that the graph screen can show, by its header: BMP, GIF, JPEG or PNG
/// of a size that a logo can have.
[[nodiscard]] bool Is_Picture_File(const std::string& path);

} // namespace kestrum
