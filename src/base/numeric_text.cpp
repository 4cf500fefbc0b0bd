#include "base/numeric_text.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace kestrum {

namespace {

constexpr int significant_digits = 15;

bool Is_Digit(char letter) {
    return letter >= '0' && letter <= '9';
}

/// What a number's text is made of, in the form that `std::from_chars` takes.
struct Number_Parts {
    bool negative = false;
    std::string_view mantissa{}; // digits with at most one separator
    std::string_view exponent{}; // sign and digits
};

/// Takes a sign off the front or the back. One sign is allowed in all.
bool Take_Sign(std::string_view& text) {
    const auto is_sign = [](char letter) { return letter == '+' || letter == '-'; };
    if (!text.empty() && is_sign(text.front())) {
        const bool negative = text.front() == '-';
        text.remove_prefix(1);
        return negative;
    }
    if (!text.empty() && is_sign(text.back())) {
        const bool negative = text.back() == '-';
        text.remove_suffix(1);
        return negative;
    }
    return false;
}

std::size_t Mantissa_Length(std::string_view text, char point) {
    std::size_t length = 0;
    bool point_seen = false;
    bool digit_seen = false;
    for (; length < text.size(); ++length) {
        if (Is_Digit(text[length])) {
            digit_seen = true;
        } else if (text[length] == point && !point_seen) {
            point_seen = true;
        } else {
            break;
        }
    }
    return digit_seen ? length : 0;
}

std::string_view Exponent_Of(std::string_view text) {
    constexpr std::string_view letters = "eEdD";
    if (text.empty() || letters.find(text.front()) == std::string_view::npos) {
        Fail(error::type_mismatch);
    }
    const std::string_view exponent = text.substr(1);
    std::string_view digits = exponent;
    Take_Sign(digits);
    const bool sign_in_front =
        digits.empty() || digits.data() + digits.size() == exponent.data() + exponent.size();
    if (digits.empty() || !sign_in_front || !std::ranges::all_of(digits, Is_Digit)) {
        Fail(error::type_mismatch);
    }
    return exponent;
}

Number_Parts Parts_Of(std::string_view text, char point) {
    Number_Parts parts;
    text = Without_Outer_Blanks(text);
    parts.negative = Take_Sign(text);
    const std::size_t length = Mantissa_Length(text, point);
    if (length == 0) {
        Fail(error::type_mismatch);
    }
    parts.mantissa = text.substr(0, length);
    if (length < text.size()) {
        parts.exponent = Exponent_Of(text.substr(length));
    }
    return parts;
}

/// The number of a short plain text: a sign in front, digits and a separator. Its digits as a whole
/// number and the power of ten below it are both exact, so the quotient is the nearest double.
/// Nothing for any other text.
std::optional<double> Short_Number(std::string_view text, char point) {
    constexpr auto powers_of_ten = std::to_array<double>(
        {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15});
    const bool negative = text.starts_with('-');
    if (negative) {
        text.remove_prefix(1);
    }
    const std::size_t place_of_point = std::min(text.find(point), text.size());
    const bool has_point = place_of_point < text.size();
    const std::size_t digit_count = text.size() - (has_point ? 1 : 0);
    if (digit_count == 0 || digit_count > std::size_t{significant_digits}) {
        return {};
    }
    std::int64_t whole = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (Is_Digit(text[index])) {
            whole = whole * 10 + (text[index] - '0'); // NOLINT(*-magic-numbers)
        } else if (index != place_of_point) {
            return {};
        }
    }
    const std::size_t decimals = has_point ? digit_count - place_of_point : 0;
    const double value = static_cast<double>(whole) / powers_of_ten.at(decimals);
    return negative ? -value : value;
}

/// A value too small for double is zero; one too large is an overflow.
double Value_Out_Of_Range(std::string_view digits) {
    const std::size_t letter = std::min(digits.find('e'), digits.size());
    const std::string_view mantissa = digits.substr(0, letter);
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) {
        return 0;
    }
    const std::string_view exponent = digits.substr(std::min(letter + 1, digits.size()));
    if (exponent.starts_with('-')) {
        return 0; // texts are short: no run of digits makes up for such an exponent
    }
    const bool below_one = mantissa.find('.') < first;
    if (below_one && exponent.empty()) {
        return 0;
    }
    Fail(error::overflow);
}

double Converted(std::string_view digits) {
    double value = 0;
    const char* const last = digits.data() + digits.size();
    const auto [end, failure] = std::from_chars(digits.data(), last, value);
    if (failure == std::errc::result_out_of_range) {
        return Value_Out_Of_Range(digits);
    }
    if (failure != std::errc() || end != last) {
        Fail(error::type_mismatch);
    }
    return value;
}

/// The value's 15 significant digits and the power of ten of the first.
struct Digits {
    std::array<char, significant_digits + 1> digit{}; // one more for a carry
    int count = significant_digits;
    int exponent = 0;
    bool negative = false;

    [[nodiscard]] bool Is_Zero() const { return count == 0; }
};

Digits Digits_Of(Real value) {
    Digits digits;
    std::array<char, 32> buffer{};
    const double size = std::fabs(value.Value());
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                   std::chars_format::scientific, significant_digits - 1)
                         .ptr;
    digits.digit[0] = buffer[0]; // then a point, the other digits, "e" and the exponent
    std::copy_n(buffer.data() + 2, significant_digits - 1, digits.digit.data() + 1);
    const char* exponent = buffer.data() + significant_digits + 2;
    if (*exponent == '+') {
        ++exponent;
    }
    std::from_chars(exponent, end, digits.exponent);
    digits.negative = value < 0;
    if (digits.digit[0] == '0') {
        digits.count = 0;
        digits.negative = false;
    }
    return digits;
}

/// Rounds half away from zero to a number of decimals and drops the trailing zeros.
void Round_To(Digits& digits, int decimals) {
    const int kept = digits.exponent + 1 + decimals;
    if (kept < digits.count) {
        const bool up = kept >= 0 && digits.digit[static_cast<std::size_t>(kept)] >= '5';
        digits.count = std::max(kept, 0);
        if (up) {
            int last = digits.count - 1;
            while (last >= 0 && digits.digit[static_cast<std::size_t>(last)] == '9') {
                --last;
            }
            digits.count = last + 1;
            if (last >= 0) {
                ++digits.digit[static_cast<std::size_t>(last)];
            } else {
                digits.digit[0] = '1'; // 9.99 became 10
                digits.count = 1;
                ++digits.exponent;
            }
        }
    }
    while (digits.count > 0 && digits.digit[static_cast<std::size_t>(digits.count - 1)] == '0') {
        --digits.count;
    }
    if (digits.count == 0) {
        digits.negative = false; // a zero has no minus
    }
}

/// The digit that stands at a power of ten.
char Digit_At(const Digits& digits, int power) {
    const int index = digits.exponent - power;
    return index >= 0 && index < digits.count ? digits.digit[static_cast<std::size_t>(index)] : '0';
}

std::string Written(const Digits& digits, int least_decimals, char point) {
    std::string text;
    if (digits.negative) {
        text += '-';
    }
    const int top = digits.Is_Zero() ? 0 : std::max(digits.exponent, 0);
    for (int power = top; power >= 0; --power) {
        text += Digit_At(digits, power);
    }
    const int used = digits.Is_Zero() ? 0 : digits.count - 1 - digits.exponent;
    const int decimals = std::max(least_decimals, used);
    if (decimals > 0) {
        text += point;
        for (int power = -1; power >= -decimals; --power) {
            text += Digit_At(digits, power);
        }
    }
    return text;
}

/// A picture: so many decimals at least, so many at most.
std::string Picture(Real value, int least, int most, char point) {
    Digits digits = Digits_Of(value);
    Round_To(digits, most);
    return Written(digits, least, point);
}

/// Half to even, within the range of an integer type.
template <typename Integer>
int Rounded_To(Real number) {
    const double value = std::nearbyint(number.Value()); // the default mode is half to even
    if (value < std::numeric_limits<Integer>::min() ||
        value > std::numeric_limits<Integer>::max()) {
        Fail(error::overflow);
    }
    return static_cast<int>(value);
}

} // namespace

Real Numeric_Text::Read(std::string_view text) const {
    if (const auto value = Short_Number(text, Point())) {
        return {*value};
    }
    const Number_Parts parts = Parts_Of(text, Point());
    std::string plain(parts.mantissa);
    std::ranges::replace(plain, ',', '.');
    if (!parts.exponent.empty()) {
        plain += 'e';
        plain += parts.exponent;
    }
    const double value = Converted(plain);
    return {parts.negative ? -value : value};
}

int Numeric_Text::Read_Integer(std::string_view text) const {
    return Rounded_To<short>(Read(text));
}

int Numeric_Text::Read_Long(std::string_view text) const {
    return Rounded_To<int>(Read(text));
}

std::string Numeric_Text::Plain(Real value) const {
    constexpr int most_decimals = 15;
    Digits digits = Digits_Of(value);
    while (digits.count > 0 && digits.digit[static_cast<std::size_t>(digits.count - 1)] == '0') {
        --digits.count;
    }
    const int decimals = digits.count - 1 - digits.exponent;
    if (digits.Is_Zero() || (digits.exponent < significant_digits && decimals <= most_decimals)) {
        return Written(digits, 0, Point());
    }
    const int exponent = digits.exponent;
    digits.exponent = 0;
    std::string text = Written(digits, 0, Point());
    text += exponent < 0 ? "E-" : "E+";
    const int size = std::abs(exponent);
    if (size < 10) {
        text += '0';
    }
    std::array<char, 4> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size).ptr;
    return text.append(buffer.data(), end);
}

std::string Numeric_Text::Text_To_Number_String(std::string_view text) {
    return Plain(Read_Exchanged(text));
}

Real Numeric_Text::Read_Exchanged(std::string_view text) {
    const char foreign = comma_mode != 0 ? '.' : ',';
    const std::size_t found = text.find(foreign);
    if (found == std::string_view::npos) {
        return Read(text);
    }
    locale_point = text;
    locale_point[found] = Point();
    return Read(locale_point);
}

Real Numeric_Text::Read_Either_Mark(std::string_view text) {
    const Real value = Read_Exchanged(text);
    // As many digits as a short text can hold come back unchanged.
    return text.size() <= std::size_t{significant_digits} ? value : Read(Plain(value));
}

int Numeric_Text::Read_Integer_Either_Mark(std::string_view text) {
    return Rounded_To<short>(Read_Either_Mark(text));
}

std::string Numeric_Text::Fmt_Whole(Real value) const {
    return Picture(value, 0, 0, Point());
}

std::string Numeric_Text::Fmt_Thousands(Real value) const {
    constexpr int group = 3;
    std::string text = Picture(value, 0, 0, Point());
    const int sign = text.front() == '-' ? 1 : 0;
    for (int index = static_cast<int>(text.size()) - group; index > sign; index -= group) {
        text.insert(static_cast<std::size_t>(index), 1, comma_mode != 0 ? '.' : ',');
    }
    return text;
}

std::string Numeric_Text::Fmt_One_Place(Real value) const {
    return Picture(value, 1, 1, Point());
}

std::string Numeric_Text::Fmt_Two_Place(Real value) const {
    return Picture(value, align_mode == Alignment::Right ? 2 : 1, 2, Point());
}

std::string Numeric_Text::Fmt_Three_Place(Real value) const {
    return Picture(value, align_mode == Alignment::Right ? 3 : 1, 3, Point());
}

std::string Numeric_Text::Fmt_Four_Place(Real value) const {
    return Picture(value, align_mode == Alignment::Right ? 4 : 1, 4, Point());
}

std::string Numeric_Text::Fmt_Up_To_Four(Real value) const {
    return Picture(value, 1, 4, Point());
}

std::string Numeric_Text::Fmt_Up_To_Five(Real value) const {
    return Picture(value, 1, 5, Point());
}

std::string Numeric_Text::Fmt_Up_To_Six(Real value) const {
    return Picture(value, 1, 6, Point());
}

std::string Numeric_Text::Fmt_Six_Place(Real value) const {
    return Picture(value, 6, 6, Point());
}

std::string Numeric_Text::Fmt_Eight_Wide(Real value) const {
    constexpr std::size_t width = 8;
    const std::string text = Fmt_Up_To_Six(value);
    // The search is for the dot alone; with a comma the plain cut below applies, which is wanted.
    const std::size_t point = text.find('.');
    if (point != std::string::npos && point >= width) {
        return text.substr(0, point);
    }
    return text.substr(0, width);
}

} // namespace kestrum
