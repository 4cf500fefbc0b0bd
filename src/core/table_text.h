#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// Cells of a table, row by row. Rows may differ in length.
using Table_Rows = std::vector<std::vector<std::string>>;

/// The cells of a text as spreadsheets put it on the clipboard: tabs between the cells, rows end in
/// CR LF, LF or CR, and a cell that holds one of these stands between quotes, where a quote is
/// written twice. Empty lines at the end are left out, and one amid rows of several cells is a row
/// without any.
[[nodiscard]] Table_Rows Rows_Of_Table(std::string_view text);

/// The same the other way round; each row ends in CR LF.
[[nodiscard]] std::string Table_Of_Rows(const Table_Rows& rows);

} // namespace kestrum
