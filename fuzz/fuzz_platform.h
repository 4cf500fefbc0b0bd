#pragma once

#include "base/text.h"
#include "core/null_platform.h"
#include "core/session.h"

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
