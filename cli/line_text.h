#pragma once

#include <string>
#include <string_view>

namespace kestrum::cli {

/// A box's text in one line: what is no letter there, line breaks above all, becomes a blank.
[[nodiscard]] std::string One_Line(std::string_view text);

/// A text whose control characters are spelled, as "\n" and "\u001b", so that a terminal does not
/// obey them. Those in `kept` stay.
[[nodiscard]] std::string Escaped(std::string_view text, std::string_view kept = {});

/// The same between single quotes, for messages.
[[nodiscard]] std::string Quoted(std::string_view text);

/// Adds a field of a comma-separated line; one that holds a mark of the format stands in quotes.
void Append_Field(std::string& out, std::string_view text);

/// Adds what stands between the quotes of such a field.
void Append_Doubling_Quotes(std::string& out, std::string_view text);

} // namespace kestrum::cli
