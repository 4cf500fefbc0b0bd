#pragma once

#include <string>

namespace kestrum {

/// What the system does for the program outside of it. Nothing here is waited for, and nothing
/// that goes wrong there touches the program.
struct Shell {
    Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    virtual ~Shell() = default;

    /// Opens the address of a web page, or a mail that a "mailto:" text describes. False when
    /// nothing of the system takes it.
    [[nodiscard]] virtual bool Open(const std::string& address) = 0;

    /// Begins to play a sound file. False when it cannot be played.
    [[nodiscard]] virtual bool Play(const std::string& path) = 0;
};

} // namespace kestrum
