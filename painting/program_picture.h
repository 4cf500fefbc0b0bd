#pragma once

#include "drawing/figure.h"

namespace kestrum::painting {

/// The program's icon: a poppet valve lifted off its seat, with the flow around it. The one drawing
/// of it, for the windows and for the files of an installation.
[[nodiscard]] Figure Program_Picture();

} // namespace kestrum::painting
