#pragma once

#include <cstdint>

namespace kestrum {

class Control;

/// Numbers that tell inputs from other inputs. Those of a screen are the sums of its controls', so
/// that a change costs no walk. The two decimal separators count as the same, since their switch
/// changes no figure.
struct Input_Digests {
    /// Of what the screen's results follow from.
    std::uint64_t figures = 0;
    /// Of all that the user enters, which is what a file keeps.
    std::uint64_t inputs = 0;
};

/// What a control adds to the digests of its screen: nothing when it is no input.
[[nodiscard]] Input_Digests Share_Of(const Control& control);

} // namespace kestrum
