#include "cli/line_text.h"

namespace kestrum::cli {

namespace {

/// Length of the control character at the front of a text, 0 where a letter stands.
std::size_t Control_Length(std::string_view text) {
    constexpr unsigned char first_letter = 32;
    constexpr unsigned char rubout = 127;
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < first_letter || lead == rubout) {
        return 1;
    }
    // U+0080 to U+009F, of which a terminal obeys some.
    const bool is_second_block =
        lead == 0xC2 && text.size() > 1 && (static_cast<unsigned char>(text[1]) & 0xE0U) == 0x80;
    return is_second_block ? 2 : 0;
}

void Append_Spelled(std::string& out, char letter) {
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr unsigned bits_of_digit = 4;
    switch (letter) {
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        const auto code = static_cast<unsigned char>(letter);
        out += "\\u00";
        out += digits[code >> bits_of_digit];
        out += digits[code & 0xFU];
    }
}

} // namespace

std::string One_Line(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t control = Control_Length(text);
        if (control == 0) {
            line += text.front();
        } else if (!line.ends_with(' ')) {
            line += ' ';
        }
        text.remove_prefix(control == 0 ? 1 : control);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

std::string Escaped(std::string_view text, std::string_view kept) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t control = Control_Length(text);
        if (control == 0 || kept.find(text.front()) != std::string_view::npos) {
            shown += text.front();
            text.remove_prefix(1);
        } else {
            Append_Spelled(shown, text[control - 1]);
            text.remove_prefix(control);
        }
    }
    return shown;
}

std::string Quoted(std::string_view text) {
    return "'" + Escaped(text) + "'";
}

void Append_Doubling_Quotes(std::string& out, std::string_view text) {
    for (const char letter : text) {
        out.append(letter == '"' ? 2U : 1U, letter);
    }
}

void Append_Field(std::string& out, std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    Append_Doubling_Quotes(out, text);
    out += '"';
}

} // namespace kestrum::cli
