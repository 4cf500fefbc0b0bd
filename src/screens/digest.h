#pragma once

#include <cstdint>

namespace kestrum {

class Screen;

// Numbers that tell the inputs of a screen from other inputs. The two decimal separators count as
// the same, since their switch changes no figure.

/// Of what the screen's results follow from.
[[nodiscard]] std::uint64_t Digest_Of_Figures(const Screen& screen);

/// Of all that the user enters, which is what a file keeps.
[[nodiscard]] std::uint64_t Digest_Of_Inputs(const Screen& screen);

} // namespace kestrum
