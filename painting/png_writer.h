#pragma once

#include <QImage>

#include <string>

namespace kestrum::painting {

/// The bytes of a PNG file of an image without transparency, with its density. A drawing, with its
/// few colours and long runs of them, is written with a palette: the file is half the size and
/// packed many times faster than by Qt's own writer. A photograph keeps all its colours.
[[nodiscard]] std::string Png_Bytes(const QImage& image);

} // namespace kestrum::painting
