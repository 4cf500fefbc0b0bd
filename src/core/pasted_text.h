#pragma once

#include "base/numeric_text.h"
#include "screens/control.h"

#include <string>
#include <string_view>

namespace kestrum {

/// What becomes of a text that is pasted or dropped into a field, or comes from an input method.
struct Pasted_Text {
    /// What goes into the field; nothing when the text is refused.
    std::u32string piece;
    /// Why it is refused, in words for the user; empty when it is taken.
    std::string refusal;
};

/// The one piece of a pasted text that a field takes, or why it takes none. Outer blanks are left
/// out; in a number cell the other separator is exchanged, unless it may be a thousands mark, and
/// every character must pass the field's filter. `rest` is what stays of the field's text.
[[nodiscard]] Pasted_Text Piece_For(const Numeric_Text& numbers, const Control& field,
                                    std::string_view rest, std::string_view pasted);

/// Why a field's filter refuses a key, in words for the user.
[[nodiscard]] std::string Words_For_Refused_Key(const Numeric_Text& numbers, const Control& field,
                                                char32_t key);

} // namespace kestrum
