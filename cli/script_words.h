#pragma once

#include "base/font.h"

#include <istream>
#include <optional>
#include <string>
#include <string_view>

/// The words of a script's line. What cannot be read raises `Script_Error`.
namespace kestrum::cli {

/// `\n`, `\t` and `\\` in an argument. A line break of the system is CR LF.
[[nodiscard]] std::string Unescaped(std::string_view text);

/// Takes the word at the front, and the blank behind it, off a text.
std::string_view First_Word(std::string_view& rest);

/// A first line without the mark with which some editors begin a file.
[[nodiscard]] std::string_view Without_Encoding_Mark(std::string_view line);

/// Whether a text holds more than blanks.
[[nodiscard]] bool Holds_Words(std::string_view text);

/// A place on a picture, in its own units.
[[nodiscard]] double Coordinate(std::string_view text);

/// A blue-green-red number.
[[nodiscard]] int Colour_From(std::string_view text);

/// A font as "NAME;SIZE;BOLD;ITALIC": the size in points, bold and italic 1 or 0.
[[nodiscard]] Font Font_From(std::string_view text);

/// The number of the last line that asks for what was drawn, found by reading ahead; 0 when there
/// is none, nothing when the script cannot be read twice, as one that is being typed. Raises
/// `Stream_Error` with `failure` when reading fails.
[[nodiscard]] std::optional<int> Last_Canvas_Line(std::istream& script, const std::string& failure);

} // namespace kestrum::cli
