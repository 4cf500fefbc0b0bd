#pragma once

#include "base/real.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace kestrum {

/// How text boxes set their texts.
enum class Alignment { Left = 0, Right = 1, Center = 2 };

/// Numbers as the fields show them. The members are the session's switches; each call looks at
/// them anew, so that no step works with an old separator.
struct Numeric_Text {
    /// 1 when the decimal separator is a comma.
    int comma_mode = 0;
    /// Of the text boxes. Flush right shows fixed decimals.
    Alignment align_mode = Alignment::Left;
    /// The separator found at the start, and scratch of `Text_To_Number_String` afterwards.
    std::string locale_point = ".";

    [[nodiscard]] char Point() const { return comma_mode != 0 ? ',' : '.'; }

    /// Reads a text as a number. Blanks at both ends are skipped; a sign may stand in front or
    /// behind; the separator of the mode may lead or trail; an exponent may follow behind E or D.
    /// Raises 13 for anything else, the other separator included, and 6 beyond double.
    [[nodiscard]] Real Read(std::string_view text) const;

    /// Reads a field; the error knows which one it was.
    template <typename Field>
    [[nodiscard]] Real operator()(const Field& field) const {
        return Reading(field, [&] { return Read(field.Text()); });
    }

    /// Reads a text as a 16-bit integer, half to even. Raises 13, and 6 outside -32768..32767.
    [[nodiscard]] int Read_Integer(std::string_view text) const;

    template <typename Field>
    [[nodiscard]] int Read_Integer(const Field& field) const requires requires {
        field.Address();
    }

    {
        return Reading(field, [&] { return Read_Integer(field.Text()); });
    }

    /// The same as a 32-bit integer, for colours.
    [[nodiscard]] int Read_Long(std::string_view text) const;

    /// Up to 15 significant digits, no trailing zeros; exponent form where it is needed.
    [[nodiscard]] std::string Plain(Real value) const;

    /// A number written with either separator in the form that this mode reads: the first foreign
    /// separator is exchanged, then the text is read and written back. Raises as `Read`.
    [[nodiscard]] std::string Text_To_Number_String(std::string_view text);

    /// The number behind such a text, which has 15 significant digits at most.
    [[nodiscard]] Real Read_Either_Mark(std::string_view text);

    template <typename Field>
    [[nodiscard]] Real Read_Either_Mark(const Field& field) requires requires {
        field.Address();
    }

    {
        return Reading(field, [&] { return Read_Either_Mark(field.Text()); });
    }

    /// The same rounded to a 16-bit integer, halves to the even one. Raises 6 beyond that.
    [[nodiscard]] int Read_Integer_Either_Mark(std::string_view text);

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
    /// Six places always.
    [[nodiscard]] std::string Fmt_Six_Place(Real value) const;
    /// At most eight characters, or the whole part of eight digits and more.
    [[nodiscard]] std::string Fmt_Eight_Wide(Real value) const;

private:
    /// The number of a text whose first foreign separator is exchanged.
    [[nodiscard]] Real Read_Exchanged(std::string_view text);

    template <typename Field, typename Read_It>
    static std::invoke_result_t<Read_It> Reading(const Field& field, Read_It read_it) {
        try {
            return read_it();
        } catch (Run_Time_Error& failure) {
            failure.Note_Field(field.Address());
            throw;
        }
    }
};

/// One of the format helpers, for the tables that name one.
using Format = std::string (Numeric_Text::*)(Real) const;

} // namespace kestrum
