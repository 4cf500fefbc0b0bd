#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Appends a text to a line of the report, with blanks up to a width. A text that is longer is
/// never cut: it pushes the rest of the line to the right.
using Padding = void (*)(std::string& line, int width, std::string_view text);

void Pad_Left(std::string& line, int width, std::string_view text);
/// Of an odd rest the blank more stands behind the text.
void Pad_Center(std::string& line, int width, std::string_view text);
void Pad_Right(std::string& line, int width, std::string_view text);

/// The padding that one of the two sets of alignment buttons of the report screen has chosen.
[[nodiscard]] Padding Chosen_Padding(const Control_Array& alignment_buttons);

} // namespace kestrum
