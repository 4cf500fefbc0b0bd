#pragma once

#include "platform/clock.h"

#include <string>

namespace kestrum {

/// The display, in pixels, and its pixels per inch.
struct Display {
    int width = 1920;
    int height = 1080;
    int dpi = 96;
};

/// What the session finds around it when it starts.
struct Surroundings {
    /// The program's own folder, without a separator at its end.
    std::string folder;
    /// The arguments meant for the session, joined by blanks.
    std::string command_line;
    /// The decimal separator of the user's system, "." or ",".
    std::string decimal_point = ".";
    Display display;
    Clock clock{};
    /// Version of the program, as "5.0.0".
    std::string version;
};

} // namespace kestrum
