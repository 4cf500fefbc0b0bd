#pragma once

#include "drawing/figure.h"

namespace kestrum {

/// Colours of the drawing, 0xRRGGBB, so that it can be read on a light and on a dark ground.
struct Dimension_Colours {
    int ground = 0xFFFFFF;
    int ink = 0x20302F;
    int metal = 0xD5DEDE;
    int mark = 0x17696A;
};

/// Where the dimensions of a flow test are measured: valve and seat, the port's section and its
/// middle. Not to scale.
[[nodiscard]] Figure Dimension_Drawing(const Dimension_Colours& colours);

} // namespace kestrum
