#pragma once

#include "painting/replay.h"

#include <optional>
#include <string>

namespace kestrum::painting {

/// The bytes of an SVG file of a drawing of the canvas with what surrounds it. Texts stay texts;
/// each tells its width, so a reader with another font lays them out the same.
[[nodiscard]] std::string Svg_Bytes(const Drawing& drawing,
                                    const std::optional<Logo_Picture>& logo);

} // namespace kestrum::painting
