#pragma once

#include "base/run_time_error.h"
#include "screens/control.h"

namespace kestrum {

// Settings that come as numbers, from files or from dialogs. Every reader takes them through
// these, so that no code behind it meets a value that it does not know.

/// A switch is on at 1 and at nothing else.
[[nodiscard]] constexpr int Switch_Of(int number) {
    return number == 1 ? 1 : 0;
}

/// A colour has 24 bits; what stands above them is left out.
[[nodiscard]] constexpr Colour Colour_Of(int number) {
    constexpr unsigned all_bits = 0xFFFFFF;
    return static_cast<Colour>(static_cast<unsigned>(number) & all_bits);
}

/// One of the choices that count from 0 to `last`. Raises 380 for another number.
template <typename Choice>
[[nodiscard]] Choice Choice_Of(int number, Choice last) {
    if (number < 0 || number > static_cast<int>(last)) {
        Fail(error::invalid_property_value);
    }
    return static_cast<Choice>(number);
}

} // namespace kestrum
