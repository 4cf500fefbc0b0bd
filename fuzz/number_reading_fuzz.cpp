// Feeds texts to the reading of numbers: each is a number or one of two errors, and a number's
// plain text reads as the same 15 digits again.

#include "base/numeric_text.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kestrum;
    if (size == 0) {
        return 0;
    }
    const Numeric_Text numbers{.comma_mode = data[0] & 1};
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    try {
        const Real value = numbers.Read(text);
        Require(std::isfinite(value.Value()));
        const std::string plain = numbers.Plain(value);
        Require(plain.size() <= 22); // sign, 15 digits, mark, exponent of three digits and its sign
        Require(numbers.Plain(numbers.Read(plain)) == plain);
        static_cast<void>(numbers.Fmt_Two_Place(value));
        Require(numbers.Fmt_Eight_Wide(value).size() >= 3);
    } catch (const Run_Time_Error& failure) {
        // Digits next to the largest double may round up beyond it.
        Require(failure.Number() == error::type_mismatch || failure.Number() == error::overflow);
    }
    return 0;
}
