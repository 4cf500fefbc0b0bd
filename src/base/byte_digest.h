#pragma once

#include <cstdint>
#include <string_view>

namespace kestrum {

/// A number that tells texts apart, the same in every run and on every system: Fowler, Noll and
/// Vo's of 64 bits, the form that multiplies last.
class Byte_Digest {
public:
    constexpr void Add(char character) {
        constexpr std::uint64_t prime = 0x100000001B3;
        value_ = (value_ ^ static_cast<unsigned char>(character)) * prime;
    }

    constexpr void Add(std::string_view text) {
        for (const char character : text) {
            Add(character);
        }
    }

    [[nodiscard]] constexpr std::uint64_t Value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

[[nodiscard]] constexpr std::uint64_t Digest_Of(std::string_view text) {
    Byte_Digest digest;
    digest.Add(text);
    return digest.Value();
}

} // namespace kestrum
