#pragma once

#include <string>

namespace kestrum {

/// "5.0.0", from the build's own version.
[[nodiscard]] std::string Program_Version();

} // namespace kestrum
