#include "cli/line_text.h"

namespace kestrum::cli {

std::string One_Line(std::string_view text) {
    constexpr unsigned char first_letter = 32;
    constexpr unsigned char rubout = 127;
    std::string line;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code >= first_letter && code != rubout) {
            line += letter;
        } else if (!line.ends_with(' ')) {
            line += ' ';
        }
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

void Append_Field(std::string& out, std::string_view text) {
    if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += text;
        return;
    }
    out += '"';
    for (const char letter : text) {
        out.append(letter == '"' ? 2U : 1U, letter);
    }
    out += '"';
}

} // namespace kestrum::cli
