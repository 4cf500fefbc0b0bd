#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Asks for a file, starting in the program's folder. Raises 75 when the user cancels, so that a
/// cancel takes the way of every failure before the file.
[[nodiscard]] std::string Chosen_File(Session& session, Chooser_Mode mode, std::string_view filter,
                                      int filter_index);

} // namespace kestrum
