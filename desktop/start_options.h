#pragma once

#include "platform/surroundings.h"

#include <span>
#include <string>
#include <vector>

namespace kestrum::desktop {

/// How the program was called.
struct Start_Options {
    bool wants_help = false;
    bool wants_version = false;
    /// Program folder that was asked for; empty: the program chooses.
    std::string folder;
    /// The session's switches, joined by blanks.
    std::string command_line;
    /// Files to be opened, by their whole paths.
    std::vector<std::string> files;
    bool wants_new_test = false;
    bool wants_library = false;
    /// Whether it is a program of its own, even if one runs already.
    bool is_new_instance = false;
    /// What is wrong with the arguments; empty: nothing.
    std::string fault;
};

/// Reads the arguments without the program's own path. A switch is a whole argument; one that is no
/// switch is the name of a file, and so are all behind "--".
[[nodiscard]] Start_Options Options_From(std::span<const std::string> arguments);

/// What a second start tells the program that runs already; `Options_From` reads it there.
[[nodiscard]] std::vector<std::string> Words_For_Running(const Start_Options& options);

/// The program's own folder, and what the user has to know of it.
struct Program_Place {
    std::string folder;
    /// Empty when it is where it should be.
    std::string notice;
};

/// The folder of session file, settings and choosers: the one asked for, that of a portable
/// installation, or the user's data folder. It is made at need; without a home that can be written
/// a private folder among the temporary files stands in. Raises `Run_Time_Error` when a folder that
/// was asked for, or any, cannot be made.
[[nodiscard]] Program_Place Program_Folder(const Start_Options& options);

/// What the session finds around it.
[[nodiscard]] Surroundings Present_Surroundings(const Start_Options& options,
                                                const std::string& folder);

} // namespace kestrum::desktop
