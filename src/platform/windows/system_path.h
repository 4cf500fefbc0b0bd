#pragma once

#include <string>
#include <string_view>

namespace kestrum {

// Texts are UTF-8 in the program and wide where they meet the system.

[[nodiscard]] std::wstring Wide_Text(std::string_view text);

/// What is no letter comes out as the sign for one that is not known.
[[nodiscard]] std::string Narrow_Text(std::wstring_view text);

/// What the system says about one of its errors, in the user's language.
[[nodiscard]] std::string Words_Of_Failure(unsigned long failure);

/// A path as the system takes one of any length: whole, behind "\\?\".
[[nodiscard]] std::wstring System_Path(std::string_view path);

/// Whether a part of a path is no name that a file may have: one of a device, as "con.dat", one
/// with a letter that is forbidden, or one that ends in a blank or a point, which would be cut off.
[[nodiscard]] bool Has_Forbidden_Name(std::string_view path);

/// Raises 75 for such a path, with words that tell why: the system would make another file, or
/// none, without a word.
void Refuse_Forbidden_Name(std::string_view path);

} // namespace kestrum
