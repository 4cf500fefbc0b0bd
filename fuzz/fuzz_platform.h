#pragma once

#include "base/text.h"
#include "core/null_platform.h"
#include "core/session.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace kestrum::fuzz {

/// Presses Cancel or OK by the bits of the input's first byte, the lowest for the first box.
class Fuzz_Platform : public Null_Platform {
public:
    void Answer_By(unsigned bits) {
        bits_ = bits;
        boxes_ = 0;
    }

    [[nodiscard]] int Boxes() const { return boxes_; }

    Box_Answer Show_Box(const Box& box) override {
        ++boxes_;
        const bool cancels = (bits_ & 1U) != 0;
        bits_ >>= 1U;
        return cancels && box.buttons == Box_Buttons::Ok_Cancel ? Box_Answer::Cancel
                                                                : Box_Answer::Ok;
    }

private:
    unsigned bits_ = 0;
    int boxes_ = 0;
};

/// Loads what a fuzzer gives into one of two benches that stay from one input to the next, one for
/// each decimal separator. The first byte chooses it and answers the boxes.
template <typename Bench>
int Load_In_Either_Mode(const std::uint8_t* data, std::size_t size) {
    static Bench dots(false);
    static Bench commas(true);
    if (size == 0) {
        return 0;
    }
    constexpr unsigned comma_bit = 0x80;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1); // NOLINT
    ((data[0] & comma_bit) != 0 ? commas : dots).Load(data[0], bytes);
    return 0;
}

inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A text that is no UTF-8 would be taken for Windows-1252 and come out longer.
[[nodiscard]] inline bool Is_Utf8(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) || Decoded(text) == text;
}

} // namespace kestrum::fuzz
