#include "cli/json_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrum::cli {

void Append_Json_Letters(std::string& out, std::string_view text) {
    // Texts are nearly always plain, and the thousands of a long run need not be built as objects.
    const bool is_plain = std::ranges::all_of(text, [](char letter) {
        return letter >= ' ' && letter <= '~' && letter != '"' && letter != '\\';
    });
    if (is_plain) {
        out += text;
        return;
    }
    constexpr int one_line = -1;
    const std::string quoted =
        nlohmann::json(text).dump(one_line, ' ', false, nlohmann::json::error_handler_t::replace);
    out.append(quoted, 1, quoted.size() - 2);
}

void Append_Json_Text(std::string& out, std::string_view text) {
    out += '"';
    Append_Json_Letters(out, text);
    out += '"';
}

std::string Shortest(std::optional<double> number) {
    if (!number || !std::isfinite(*number)) {
        return {};
    }
    constexpr std::size_t longest = 32;
    std::array<char, longest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *number);
    return {digits.data(), end.ptr};
}

void Append_Json_Number(std::string& out, std::optional<double> number) {
    const std::string text = Shortest(number);
    out += text.empty() ? "null" : text;
}

} // namespace kestrum::cli
