#pragma once

#include "screens/compare_screen.h"

#include <string>

namespace kestrum::cli {

/// The compare table for reading: what is compared, then the columns with their headings.
[[nodiscard]] std::string Compare_Text(const Compare_Screen& table);

/// The compare table as it stands on its screen: a line for each of the rows 10 to 30, with a head
/// line of the columns' names.
[[nodiscard]] std::string Compare_Csv(const Compare_Screen& table);

} // namespace kestrum::cli
