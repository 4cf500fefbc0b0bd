#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrum::cli {

/// Adds a text as it stands between the quotes of JSON.
void Append_Json_Letters(std::string& out, std::string_view text);

/// Adds a text with its quotes.
void Append_Json_Text(std::string& out, std::string_view text);

/// Adds a number in the shortest form that reads back the same, nothing as "null".
void Append_Json_Number(std::string& out, std::optional<double> number);

/// The shortest form of a number, empty for nothing.
[[nodiscard]] std::string Shortest(std::optional<double> number);

} // namespace kestrum::cli
