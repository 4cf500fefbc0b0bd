#pragma once

#include "painting/replay.h"

#include <optional>
#include <string>

namespace kestrum::painting {

/// The bytes of an SVG file of a drawing of the canvas with what surrounds it. Texts stay texts,
/// each at its anchor, so a reader with another font lays them out alike.
[[nodiscard]] std::string Svg_Bytes(const Drawing& drawing,
                                    const std::optional<Logo_Picture>& logo);

} // namespace kestrum::painting
