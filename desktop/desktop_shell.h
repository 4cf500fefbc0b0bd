#pragma once

#include "platform/shell.h"

namespace kestrum::desktop {

/// The desktop's own programs: its browser, its mail program, and a player of sounds. Each runs as
/// a process of its own, so that it can neither hold nor end this one.
class Desktop_Shell : public Shell {
public:
    [[nodiscard]] bool Open(const std::string& address) override;
    /// Plays wave files, by the first player that the system has.
    [[nodiscard]] bool Play(const std::string& path) override;
};

} // namespace kestrum::desktop
