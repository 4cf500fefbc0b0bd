#include "graph/axis_number.h"

#include <cmath>

namespace kestrum {

namespace {

/// "0.76" as ".76".
std::string Without_Leading_Zero(std::string text) {
    const std::size_t zero = text.front() == '-' ? 1 : 0;
    if (text[zero] == '0') {
        text.erase(zero, 1);
    }
    return text;
}

void Drop_End(std::string& text, std::string_view end, std::size_t shortest) {
    if (text.size() >= shortest && text.ends_with(end)) {
        text.resize(text.size() - end.size());
    }
}

std::string Cut(std::string text, double size, std::size_t width, char point) {
    text = text.substr(0, width);
    if (text.size() == width && text.back() == point) {
        text.pop_back();
    }
    constexpr double crowded = 750;
    constexpr double four_digits = 999.9;
    if (size > crowded && size < four_digits) {
        text = text.substr(0, width - 2);
    }
    const std::string zeros = std::string(1, point) + "000";
    Drop_End(text, std::string_view(zeros).substr(0, 2), width - 2);
    Drop_End(text, std::string_view(zeros).substr(0, 3), width - 1);
    Drop_End(text, zeros, width);
    return text;
}

} // namespace

std::string Format_Axis_Number(const Numeric_Text& numbers, double value) {
    constexpr double tiny = 0.001;
    constexpr double small = 0.1;
    constexpr double large = 99999;
    if (value == 0) {
        return "0";
    }
    std::string text = Without_Leading_Zero(numbers.Fmt_Up_To_Six(value));
    const double size = std::fabs(value);
    if (size < tiny) {
        return text;
    }
    if (size < 1) {
        if (value < 0) {
            return text.substr(0, 7);
        }
        return value < small ? text.substr(0, 6)
                             : Without_Leading_Zero(numbers.Fmt_Up_To_Four(value));
    }
    if (size >= large) {
        return text.substr(0, text.find(numbers.Point()));
    }
    return Cut(text, size, value > 0 ? 5 : 6, numbers.Point());
}

} // namespace kestrum
