#pragma once

#include "library/library.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kestrum {

/// A cell of the library: a text, a number, or nothing.
using Library_Value = std::variant<std::monostate, std::string, double>;

struct Library_Column {
    std::string_view name;  // of the shell
    std::string_view title; // of the window
    Library_Value (*value)(const Library_Entry& entry);
    /// Whether a test that could not be read has it too.
    bool of_every_file = false;
};

/// The columns of the shell in their order, without the problem.
[[nodiscard]] std::span<const Library_Column> Library_Columns();

/// The columns of the window in their order: those of the shell and some that it alone has. That
/// of the small curve has no value.
[[nodiscard]] std::span<const Library_Column* const> Window_Columns();

/// A column by its name, null for an unknown one.
[[nodiscard]] const Library_Column* Library_Column_Named(std::string_view name);

/// The value of a column, nothing for a test that could not be read and has none.
[[nodiscard]] Library_Value Value_In(const Library_Column& column, const Library_Entry& entry);

/// Orders entries upwards by a column: numbers by value, texts by their bytes. What has no value
/// and what could not be read come last, and the name of the file decides between equals.
void Sort_Library(std::vector<Library_Entry>& entries, const Library_Column& column);

/// Whether a text stands in the file's name, its format or the test's name, whatever the case.
/// `lower_text` is in lower case.
[[nodiscard]] bool Holds_Words(const Library_Entry& entry, std::string_view lower_text);

/// Whether each of the words stands somewhere in the texts that the window shows of a test.
/// `lower_words` are in lower case with blanks between them.
[[nodiscard]] bool Shows_Words(const Library_Entry& entry, std::string_view lower_words);

/// A text in lower case, the accented letters of Europe included.
[[nodiscard]] std::string Lower_Words(std::string_view text);

} // namespace kestrum
