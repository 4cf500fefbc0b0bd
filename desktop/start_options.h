#pragma once

#include "platform/surroundings.h"

#include <span>
#include <string>

namespace kestrum::desktop {

/// How the program was called.
struct Start_Options {
    bool wants_help = false;
    bool wants_version = false;
    /// Program folder that was asked for; empty: the program chooses.
    std::string folder;
    /// What is left for the session, joined by blanks.
    std::string command_line;
    /// What is wrong with the arguments; empty: nothing.
    std::string fault;
};

/// Reads the arguments without the program's own path.
[[nodiscard]] Start_Options Options_From(std::span<const std::string> arguments);

/// The folder of session file, settings and choosers: the one asked for, that of a portable
/// installation, or the user's data folder. It is made at need. Raises `Run_Time_Error` when it
/// cannot be made or used.
[[nodiscard]] std::string Program_Folder(const Start_Options& options);

/// What the session finds around it.
[[nodiscard]] Surroundings Present_Surroundings(const Start_Options& options,
                                                const std::string& folder);

} // namespace kestrum::desktop
