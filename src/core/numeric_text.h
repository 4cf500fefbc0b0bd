#pragma once

#include "core/real.h"
#include "screens/control.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Numbers as the fields show them. The members are the session's switches; each call looks at
/// them anew, so that no step works with an old separator.
struct Numeric_Text {
    /// 1 when the decimal separator is a comma.
    int comma_mode = 0;
    /// 0 flush left, 1 flush right, 2 centred. Flush right shows fixed decimals.
    int align_mode = 0;
    /// The separator found at the start, and scratch of `Text_To_Number_String` afterwards.
    std::string locale_point = ".";

    [[nodiscard]] char Point() const { return comma_mode != 0 ? ',' : '.'; }

    /// Reads a text as a number. Blanks at both ends are skipped; a sign may stand in front or
    /// behind; the separator of the mode may lead or trail; an exponent may follow behind E or D.
    /// Raises 13 for anything else, the other separator included, and 6 beyond double.
    [[nodiscard]] Real Read(std::string_view text) const;

    [[nodiscard]] Real operator()(const Control& field) const { return Read(field.Text()); }

    /// Reads a text as a 16-bit integer, half to even. Raises 13, and 6 outside -32768..32767.
    [[nodiscard]] int Read_Integer(std::string_view text) const;

    /// The same as a 32-bit integer, for colours.
    [[nodiscard]] int Read_Long(std::string_view text) const;

    /// Up to 15 significant digits, no trailing zeros; exponent form where it is needed.
    [[nodiscard]] std::string Plain(Real value) const;

    /// A number written with either separator in the form that this mode reads: the first foreign
    /// separator is exchanged, then the text is read and written back. Raises as `Read`.
    [[nodiscard]] std::string Text_To_Number_String(std::string_view text);

    // Every number that reaches a field goes through one of these. All round half away from zero
    // on the value's 15 significant decimal digits.

    [[nodiscard]] std::string Fmt_Whole(Real value) const;
    [[nodiscard]] std::string Fmt_Thousands(Real value) const;
    [[nodiscard]] std::string Fmt_One_Place(Real value) const;
    [[nodiscard]] std::string Fmt_Two_Place(Real value) const;
    [[nodiscard]] std::string Fmt_Three_Place(Real value) const;
    [[nodiscard]] std::string Fmt_Four_Place(Real value) const;
    /// At most four places whatever the alignment; not for fields.
    [[nodiscard]] std::string Fmt_Up_To_Four(Real value) const;
    [[nodiscard]] std::string Fmt_Up_To_Five(Real value) const;
    [[nodiscard]] std::string Fmt_Up_To_Six(Real value) const;
    /// At most eight characters, or the whole part of eight digits and more.
    [[nodiscard]] std::string Fmt_Eight_Wide(Real value) const;
};

/// One of the format helpers, for the tables that name one.
using Format = std::string (Numeric_Text::*)(Real) const;

/// For each text box in control order: the first "." becomes a "," (free texts and captions too).
void All_Dots_To_Commas(Screen& screen);
/// The same from "," to ".".
void All_Commas_To_Dots(Screen& screen);
/// The one of the two that the mode asks for after texts came in from outside.
void Apply_Decimal_Mode(const Numeric_Text& number, Screen& screen);

} // namespace kestrum
