#include "output/padding.h"

#include "base/text.h"

#include <algorithm>

namespace kestrum {

namespace {

/// Blanks that a text lacks to a width.
std::size_t Missing(int width, std::string_view text) {
    const auto wanted = static_cast<std::size_t>(width);
    return wanted - std::min(wanted, Length(text));
}

} // namespace

void Pad_Left(std::string& line, int width, std::string_view text) {
    line.append(text).append(Missing(width, text), ' ');
}

void Pad_Center(std::string& line, int width, std::string_view text) {
    const std::size_t missing = Missing(width, text);
    const std::size_t lead = missing / 2;
    line.append(lead, ' ').append(text).append(missing - lead, ' ');
}

void Pad_Right(std::string& line, int width, std::string_view text) {
    line.append(Missing(width, text), ' ').append(text);
}

Padding Chosen_Padding(const Control_Array& alignment_buttons) {
    if (alignment_buttons(0).Value() != 0) {
        return Pad_Left;
    }
    return alignment_buttons(1).Value() != 0 ? Pad_Center : Pad_Right;
}

} // namespace kestrum
