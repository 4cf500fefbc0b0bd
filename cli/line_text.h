#pragma once

#include <string>
#include <string_view>

namespace kestrum::cli {

/// A box's text in one line: what is no letter there, line breaks above all, becomes a blank.
[[nodiscard]] std::string One_Line(std::string_view text);

/// Adds a field of a comma-separated line; one that holds a mark of the format stands in quotes.
void Append_Field(std::string& out, std::string_view text);

} // namespace kestrum::cli
