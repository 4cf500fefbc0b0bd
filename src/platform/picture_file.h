#pragma once

#include <string>

namespace kestrum {

/// Whether a file begins as a picture of a kind that the graph screen can show: BMP, GIF, JPEG or
/// PNG.
[[nodiscard]] bool Is_Picture_File(const std::string& path);

} // namespace kestrum
