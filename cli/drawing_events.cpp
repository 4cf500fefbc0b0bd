#include "cli/drawing_events.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace kestrum::cli {

namespace {

/// 0xRRGGBB as "#rrggbb".
std::string Colour_Text(int colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr unsigned bits_of_digit = 4;
    std::string text = "#000000";
    auto rest = static_cast<unsigned>(colour);
    for (std::size_t index = text.size() - 1; index > 0; --index, rest >>= bits_of_digit) {
        text[index] = digits[rest & 0xFU];
    }
    return text;
}

const char* Style_Name(Line_Style style) {
    static constexpr std::array names{"solid", "dash", "dot"};
    return names.at(static_cast<std::size_t>(style));
}

/// The canvas has one font, so only the printer's texts name theirs.
Event Text_Event(const Draw_Operation& operation) {
    Event event{{"op", "text"},
                {"x", operation.x1},
                {"y", operation.y1},
                {"text", operation.text},
                {"size", operation.size},
                {"bold", operation.bold},
                {"colour", Colour_Text(operation.colour)}};
    if (!operation.font.empty()) {
        event["font"] = operation.font;
    }
    return event;
}

} // namespace

Event Operation_Event(const Draw_Operation& operation) {
    switch (operation.kind) {
    case Draw_Kind::Clear:
        return {{"op", "clear"}};
    case Draw_Kind::Line:
        return {{"op", "line"},
                {"x1", operation.x1},
                {"y1", operation.y1},
                {"x2", operation.x2},
                {"y2", operation.y2},
                {"colour", Colour_Text(operation.colour)},
                {"width", operation.width},
                {"style", Style_Name(operation.style)}};
    case Draw_Kind::Circle:
        return {{"op", "circle"},
                {"x", operation.x1},
                {"y", operation.y1},
                {"r", operation.radius},
                {"colour", Colour_Text(operation.colour)},
                {"width", operation.width}};
    case Draw_Kind::Text:
        return Text_Event(operation);
    case Draw_Kind::Picture:
        return {{"op", "picture"},
                {"x", operation.x1},
                {"y", operation.y1},
                {"w", operation.x2},
                {"h", operation.y2}};
    }
    return {};
}

Event Operation_Events(std::span<const Draw_Operation> operations) {
    Event events = Event::array();
    for (const Draw_Operation& operation : operations) {
        events.push_back(Operation_Event(operation));
    }
    return events;
}

} // namespace kestrum::cli
