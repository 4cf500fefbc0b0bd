#pragma once

#include <string>

namespace kestrum {

/// Lets the system play a sound file and goes on. Gives false where it leaves that to programs.
[[nodiscard]] bool Play_By_System(const std::string& path);

} // namespace kestrum
