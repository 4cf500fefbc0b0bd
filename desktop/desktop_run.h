#pragma once

#include <functional>

namespace kestrum::desktop {

class Program;

/// Works on a program that is made and not yet started.
using Program_Hook = std::function<void(Program&)>;

/// The whole run of the desktop program. Gives its exit status; nothing gets out of it.
[[nodiscard]] int Run_Desktop(int count, char* values[], // NOLINT(*-avoid-c-arrays)
                              const Program_Hook& before_start = {});

} // namespace kestrum::desktop
