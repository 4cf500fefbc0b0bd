#pragma once

#include "chart/chart.h"

#include <string>

namespace kestrum::cli {

/// One JSON object with its line end.
[[nodiscard]] std::string Chart_Json(const Chart& chart);

/// A header line, a line for each test and one for each lift of the table. The columns of the
/// tests stand in front of those of the lifts; each line fills its own.
[[nodiscard]] std::string Chart_Csv(const Chart& chart);

/// The same lines for people.
[[nodiscard]] std::string Chart_Text(const Chart& chart);

} // namespace kestrum::cli
