#include "core/pasted_text.h"

#include "base/text.h"
#include "core/field_handlers.h"

#include <algorithm>
#include <utility>

namespace kestrum {

namespace {

constexpr char32_t hard_blank = 0xA0;

bool Is_Blank(char32_t letter) {
    return letter == U' ' || letter == hard_blank;
}

bool Is_Line_End(char32_t letter) {
    constexpr std::u32string_view line_ends = U"\n\r\v\f\x2028\x2029";
    return line_ends.find(letter) != std::u32string_view::npos;
}

bool Ends_Piece(char32_t letter) {
    return letter == U'\t' || Is_Line_End(letter);
}

bool Is_Control(char32_t letter) {
    constexpr char32_t first_printable = 32;
    constexpr char32_t deletes = 127;
    return letter < first_printable || letter == deletes;
}

std::u32string_view Without_Ends(std::u32string_view text, bool (*is_end)(char32_t), bool front) {
    while (!text.empty() && is_end(text.back())) {
        text.remove_suffix(1);
    }
    while (front && !text.empty() && is_end(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

/// "1,234" in dot mode may be one thousand or one and a quarter.
bool May_Be_Thousands(std::u32string_view text, char32_t foreign) {
    constexpr std::size_t group = 3;
    const std::size_t mark = text.find(foreign);
    return mark != std::u32string_view::npos && text.rfind(foreign) == mark &&
           text.size() - mark - 1 == group;
}

bool All_Pass(const Numeric_Text& numbers, const Control& field, std::string_view rest,
              std::u32string_view text) {
    std::string so_far(rest);
    for (const char32_t letter : text) {
        if (Is_Control(letter) || !Passes_Filter(numbers, field.Entry().filter, so_far, letter)) {
            return false;
        }
        if (field.Entry().filter != Key_Filter::Every_Key) {
            so_far += static_cast<char>(letter); // digits, marks and signs alone come here
        }
    }
    return true;
}

std::string Point_Name(const Numeric_Text& numbers) {
    return numbers.comma_mode != 0 ? "decimal comma" : "decimal point";
}

std::string What_It_Takes(const Numeric_Text& numbers, const Control& field) {
    switch (field.Entry().filter) {
    case Key_Filter::Unsigned_Decimal:
        return "This cell takes digits and one " + Point_Name(numbers) + ".";
    case Key_Filter::Signed_Decimal:
        return "This cell takes digits, one " + Point_Name(numbers) + " and one minus.";
    case Key_Filter::Digits_Only:
        return "This cell takes digits only.";
    case Key_Filter::Every_Key:
        break;
    }
    return "This cell takes one line of text.";
}

} // namespace

Pasted_Text Piece_For(const Numeric_Text& numbers, const Control& field, std::string_view rest,
                      std::string_view pasted) {
    const std::u32string all = Characters_Of(pasted);
    const std::u32string_view lines =
        Without_Ends(all, Is_Line_End, false); // a copied cell has one
    if (std::ranges::any_of(lines, Ends_Piece)) {
        return {.piece = {},
                .refusal = "Several cells or lines at once: one cell takes one of them."};
    }
    std::u32string piece(Without_Ends(lines, Is_Blank, true));
    if (field.Entry().filter != Key_Filter::Every_Key) {
        const char32_t foreign = numbers.comma_mode != 0 ? U'.' : U',';
        if (May_Be_Thousands(piece, foreign)) {
            return {.piece = {},
                    .refusal = "Is that a thousands mark or a " + Point_Name(numbers) +
                               "? Paste the number without the mark, or type it."};
        }
        std::ranges::replace(piece, foreign, static_cast<char32_t>(numbers.Point()));
    }
    if (!All_Pass(numbers, field, rest, piece)) {
        return {.piece = {}, .refusal = "Nothing was put in. " + What_It_Takes(numbers, field)};
    }
    return {.piece = std::move(piece), .refusal = {}};
}

std::string Words_For_Refused_Key(const Numeric_Text& numbers, const Control& field, char32_t key) {
    const bool can_hold_point = field.Entry().filter == Key_Filter::Unsigned_Decimal ||
                                field.Entry().filter == Key_Filter::Signed_Decimal;
    if (can_hold_point && key == static_cast<char32_t>(numbers.Point())) {
        return "The cell still holds a " + Point_Name(numbers) +
               ", selected or not. To replace its number, a digit has to come first.";
    }
    if (field.Entry().filter == Key_Filter::Signed_Decimal && key == U'-') {
        return "The cell still holds a minus, selected or not. Press Delete first.";
    }
    return What_It_Takes(numbers, field);
}

} // namespace kestrum
