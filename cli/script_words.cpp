#include "cli/script_words.h"

#include "base/text.h"
#include "cli/line_text.h"
#include "cli/script_error.h"
#include "cli/standard_streams.h"
#include "core/settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrum::cli {

namespace {

template <typename Number>
Number Number_From(std::string_view text) {
    Number value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size()) {
        throw Script_Error("not a number: " + Quoted(text));
    }
    return value;
}

} // namespace

std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char next = text[at] == '\\' && at + 1 < text.size() ? text[at + 1] : '\0';
        if (next == 'n') {
            plain += cr_lf;
        } else if (next == 't') {
            plain += '\t';
        } else if (next == '\\') {
            plain += '\\';
        } else {
            plain += text[at];
            continue;
        }
        ++at;
    }
    return plain;
}

std::string_view First_Word(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    return word;
}

double Coordinate(std::string_view text) {
    constexpr double farthest = 1e6; // far beyond any screen
    const auto value = Number_From<double>(text);
    if (!(std::abs(value) <= farthest)) { // nor is that a place for what is no number at all
        throw Script_Error("not a coordinate: " + Quoted(text));
    }
    return value;
}

int Colour_From(std::string_view text) {
    constexpr int white = 0xFFFFFF;
    const int value = Number_From<int>(text);
    if (value < 0 || value > white) {
        throw Script_Error("not a colour: " + Quoted(text));
    }
    return value;
}

Font Font_From(std::string_view text) {
    constexpr std::size_t part_count = 4;
    std::array<std::string_view, part_count> parts;
    std::string_view rest = text;
    for (std::string_view& part : parts) {
        part = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    }
    const auto [name, size, bold, italic] = parts;
    const auto is_switch = [](std::string_view part) { return part == "0" || part == "1"; };
    if (std::ranges::count(text, ';') != part_count - 1 || name.empty() || !is_switch(bold) ||
        !is_switch(italic)) {
        throw Script_Error("not NAME;SIZE;BOLD;ITALIC: " + Quoted(text));
    }
    const auto points = Number_From<double>(size);
    if (!Is_Font_Size(points)) {
        throw Script_Error("not a size of a font: " + Quoted(size));
    }
    return {
        .name = std::string(name), .size = points, .bold = bold == "1", .italic = italic == "1"};
}

std::string_view Without_Encoding_Mark(std::string_view line) {
    constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
    return line.substr(line.starts_with(utf8_mark) ? utf8_mark.size() : 0);
}

bool Holds_Words(std::string_view text) {
    return text.find_first_not_of(" \t") != std::string_view::npos;
}

std::optional<int> Last_Canvas_Line(std::istream& script, const std::string& failure) {
    const std::istream::pos_type start = script.tellg();
    const bool can_go_back = start != std::istream::pos_type(-1) &&
                             script.seekg(0, std::ios::end) && script.tellg() > start;
    script.clear();
    if (!can_go_back) {
        return std::nullopt;
    }
    script.seekg(start);
    Line_Source lines(script, failure);
    int last = 0;
    int number = 0;
    for (std::string line; lines.Next(line);) {
        ++number;
        std::string_view rest = line;
        last = First_Word(rest) == "canvas" ? number : last;
    }
    script.clear();
    script.seekg(start);
    return last;
}

} // namespace kestrum::cli
