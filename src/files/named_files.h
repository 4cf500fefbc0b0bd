#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// The path of a file that goes by its name: one with a folder as it stands, any other in the
/// program's folder. Names that came through lower-casing or the decimal switch are still found.
[[nodiscard]] std::string Path_Of_Named_File(const Session& session, std::string_view name);

} // namespace kestrum
