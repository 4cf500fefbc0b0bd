#pragma once

#include "library/library_columns.h"

#include <span>
#include <string>
#include <vector>

namespace kestrum {

/// A line of the window's list: a test, or the heading of a group.
struct Library_Row {
    const Library_Entry* entry = nullptr; // null for a heading
    std::string heading;
};

/// How the list is looked at.
struct Library_Order {
    std::string words; // in lower case; see `Shows_Words`
    const Library_Column* sort = nullptr;
    bool descending = false;
    bool by_port_volume = false; // in groups of so many cubic centimetres
};

/// The tests that hold the words, open sheets first. In either direction those without a value
/// come behind the others, unreadable ones last, and the name of the file decides between equals.
/// The rows point to the entries.
[[nodiscard]] std::vector<Library_Row> Rows_In_Order(std::span<const Library_Entry> sheets,
                                                     std::span<const Library_Entry> files,
                                                     const Library_Order& order);

} // namespace kestrum
