#include "chart/figure_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kestrum {

std::string Fixed_Text(std::optional<double> value, int decimals) {
    if (!value || !std::isfinite(*value)) {
        return {};
    }
    constexpr std::size_t longest = 400;
    std::array<char, longest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *value,
                                   std::chars_format::fixed, decimals);
    std::string text(digits.data(), end.ptr);
    // What rounds to nothing has no sign.
    if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) {
        text.erase(0, 1);
    }
    return text;
}

std::string Signed_Text(std::optional<double> value, int decimals) {
    const std::string text = Fixed_Text(value, decimals);
    return text.empty() || text.starts_with('-') ? text : "+" + text;
}

std::string Lift_Text(double lift, Lift_Unit unit) {
    return Fixed_Text(lift, Entry_Of(unit).decimals);
}

std::string Bare_Text(double value, int most_decimals) {
    std::string text = Fixed_Text(value, most_decimals);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) {
            text.pop_back();
        }
    }
    return text;
}

} // namespace kestrum
