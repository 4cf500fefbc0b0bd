#pragma once

#include "core/session.h"
#include "screens/control.h"

#include <string_view>

namespace kestrum {

/// The text selected in a field, in characters; the caret stands at its end.
struct Selection {
    std::size_t start = 0; // counted from 0
    std::size_t length = 0;

    bool operator==(const Selection&) const = default;
};

/// Whether a text is a number and zero. No error comes of one that is no number.
[[nodiscard]] bool Reads_As_Zero(const Numeric_Text& numbers, std::string_view text);

/// Whether a field's filter lets a key pass; codes 8 to 13 always do.
[[nodiscard]] bool Key_Unsigned_Decimal(const Numeric_Text& numbers, std::string_view text,
                                        char32_t key);
[[nodiscard]] bool Key_Digits_Only(char32_t key);
[[nodiscard]] bool Key_Signed_Decimal(const Numeric_Text& numbers, std::string_view text,
                                      char32_t key);
/// One of the filters on a text that may stand in a field.
[[nodiscard]] bool Passes_Filter(const Numeric_Text& numbers, Key_Filter filter,
                                 std::string_view text, char32_t key);
/// The filter that the field's table line names.
[[nodiscard]] bool Passes_Filter(const Numeric_Text& numbers, const Control& field, char32_t key);

/// What is selected when the focus comes to a field: its whole text where that is the field's
/// rule and no mouse button brought the focus, else nothing, with the caret behind the text.
[[nodiscard]] Selection Select_Field_Text(const Session& session, const Control& field);

/// Refuses a field that holds nothing but "-", "." and ",": the focus goes back, then the box
/// shows. Gives whether the field passed.
bool Check_Not_Blank(Session& session, Control& field);
/// The same, and a value of zero is refused too. A text that is no number passes in silence.
bool Check_Not_Zero(Session& session, Control& field);

inline constexpr std::string_view msg_blank = "This Field can not be Blank / Empty.";
inline constexpr std::string_view msg_zero =
    "Note: This Field can not be Blank / Empty and,\r\nMust have a Numerical Value other than "
    "Zero.";

} // namespace kestrum
