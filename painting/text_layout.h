#pragma once

#include "painting/fitted_text.h"

#include <span>
#include <vector>

namespace kestrum::painting {

/// The texts among the steps of a drawing as they are painted. One that would lie over an earlier
/// one moves to its right, and one that would leave the frame is squeezed into it.
[[nodiscard]] std::vector<Fitted_Text> Laid_Out_Texts(std::span<const Draw_Operation> steps);

} // namespace kestrum::painting
