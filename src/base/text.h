#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts are UTF-8; positions and lengths count characters, the first is 1.
namespace kestrum {

[[nodiscard]] std::size_t Length(std::string_view text);

/// The characters from a position on. A start behind the end gives an empty text.
[[nodiscard]] std::string_view Middle(std::string_view text, std::size_t start);

/// `length` characters from a position on. Raises 5 for a negative length.
[[nodiscard]] std::string_view Middle(std::string_view text, std::size_t start, long length);

[[nodiscard]] std::string_view Left(std::string_view text, std::size_t length);

/// Position of the first occurrence, 0 when there is none.
[[nodiscard]] std::size_t Position_Of(std::string_view text, char mark);

/// ASCII letters alone are lowered, so that the copy keeps its length and its positions.
[[nodiscard]] std::string Lower_Copy(std::string_view text);

[[nodiscard]] std::string_view Without_Outer_Blanks(std::string_view text);

/// Bytes from outside as UTF-8: a byte order mark is dropped, valid UTF-8 is kept, anything else
/// is taken as Windows-1252.
[[nodiscard]] std::string Decoded(std::string_view bytes);

/// The characters of a text, by their codes.
[[nodiscard]] std::u32string Characters_Of(std::string_view text);

/// The text that characters make.
[[nodiscard]] std::string Text_Of(std::u32string_view characters);

inline constexpr std::string_view cr_lf = "\r\n";

} // namespace kestrum
