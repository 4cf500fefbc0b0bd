#pragma once

#include <string>

namespace kestrum::cli {

/// A JPEG file of one colour, 0xRRGGBB, at the best quality. A side is 1 to 65535 dots long.
/// Raises 481 for any other.
[[nodiscard]] std::string Plain_Jpeg(int width, int height, int colour);

} // namespace kestrum::cli
