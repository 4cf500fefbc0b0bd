#include "base/text.h"

#include "base/run_time_error.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kestrum {

namespace {

constexpr unsigned continuation_mask = 0xC0;
constexpr unsigned continuation = 0x80;

bool Starts_Character(char byte) {
    return (static_cast<unsigned char>(byte) & continuation_mask) != continuation;
}

/// Byte offset of the character at a position counted from 0.
std::size_t Offset_Of(std::string_view text, std::size_t character) {
    if (character >= text.size()) {
        return text.size(); // no character is shorter than a byte
    }
    std::size_t offset = 0;
    while (character > 0 && offset < text.size()) {
        ++offset;
        while (offset < text.size() && !Starts_Character(text[offset])) {
            ++offset;
        }
        --character;
    }
    return offset;
}

/// Length in bytes of the valid sequence at the front, 0 when it is not valid UTF-8.
std::size_t Sequence_Length(std::string_view text) {
    const auto byte = [&](std::size_t offset) {
        return offset < text.size() ? static_cast<unsigned char>(text[offset]) : 0U;
    };
    const auto tail = [&](std::size_t offset, unsigned low = 0x80, unsigned high = 0xBF) {
        return byte(offset) >= low && byte(offset) <= high;
    };
    const unsigned lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return tail(1) ? 2 : 0;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong form
        const unsigned high = lead == 0xED ? 0x9F : 0xBF; // no surrogate
        return tail(1, low, high) && tail(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
        return tail(1, low, high) && tail(2) && tail(3) ? 4 : 0;
    }
    return 0;
}

bool Is_Valid_Utf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = Sequence_Length(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

/// Windows-1252 differs from Latin-1 in these 32 places; unassigned ones stand for themselves.
constexpr std::array<std::uint16_t, 32> windows_1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void Append_Character(std::string& text, unsigned code) {
    constexpr unsigned six_bits = 0x3F;
    const auto add = [&text](unsigned byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        add(code);
        return;
    }
    if (code < 0x800) {
        add(0xC0U | (code >> 6U));
    } else if (code < 0x10000) {
        add(0xE0U | (code >> 12U));
        add(0x80U | ((code >> 6U) & six_bits));
    } else {
        add(0xF0U | (code >> 18U));
        add(0x80U | ((code >> 12U) & six_bits));
        add(0x80U | ((code >> 6U) & six_bits));
    }
    add(0x80U | (code & six_bits));
}

std::string From_Windows_1252(std::string_view bytes) {
    // All at once: to grow would take twice the memory for a moment.
    constexpr std::size_t longest_letter = 3;
    const auto plain = static_cast<std::size_t>(std::ranges::count_if(
        bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }));
    std::string text;
    text.reserve(plain + longest_letter * (bytes.size() - plain));
    for (const char byte : bytes) {
        const unsigned code = static_cast<unsigned char>(byte);
        const bool special = code >= 0x80 && code < 0xA0;
        Append_Character(text, special ? windows_1252[code - 0x80] : code);
    }
    return text;
}

} // namespace

std::size_t Length(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(text, Starts_Character));
}

std::string_view Middle(std::string_view text, std::size_t start) {
    return text.substr(Offset_Of(text, start - 1));
}

std::string_view Middle(std::string_view text, std::size_t start, long length) {
    if (length < 0) {
        Fail(error::invalid_call);
    }
    const std::string_view rest = Middle(text, start);
    return rest.substr(0, Offset_Of(rest, static_cast<std::size_t>(length)));
}

std::string_view Left(std::string_view text, std::size_t length) {
    return text.substr(0, Offset_Of(text, length));
}

std::size_t Position_Of(std::string_view text, char mark) {
    const std::size_t found = text.find(mark);
    return found == std::string_view::npos ? 0 : Length(text.substr(0, found)) + 1;
}

std::string Lower_Copy(std::string_view text) {
    std::string copy(text);
    std::ranges::transform(copy, copy.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return copy;
}

std::string_view Without_Outer_Blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Decoded(std::string_view bytes) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byte_order_mark)) {
        bytes.remove_prefix(byte_order_mark.size());
    }
    return Is_Valid_Utf8(bytes) ? std::string(bytes) : From_Windows_1252(bytes);
}

std::u32string Characters_Of(std::string_view text) {
    std::u32string characters;
    for (std::size_t offset = 0; offset < text.size();) {
        const auto lead = static_cast<unsigned char>(text[offset]);
        const std::size_t tail = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t code = tail == 0 ? lead : lead & (0x3FU >> tail);
        for (std::size_t next = 1; next <= tail && offset + next < text.size(); ++next) {
            code = (code << 6U) | (static_cast<unsigned char>(text[offset + next]) & 0x3FU);
        }
        characters += code;
        offset += tail + 1;
    }
    return characters;
}

std::string Text_Of(std::u32string_view characters) {
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters) {
        Append_Character(text, character);
    }
    return text;
}

} // namespace kestrum
