#pragma once

#include "core/session.h"
#include "desktop/desktop_windows.h"
#include "desktop/gate.h"

namespace kestrum::desktop {

/// One run of the desktop program: a session and its windows.
class Program {
public:
    Program(Dialogs& dialogs, const Surroundings& surroundings);

    /// Brings the session up to the moment when `Main` shows. Gives false when it failed.
    [[nodiscard]] bool Start();

    /// The status that the process ends with.
    [[nodiscard]] int Exit_Status() const { return gate_.Has_Failed() ? 1 : 0; }

    [[nodiscard]] Session& Its_Session() { return session_; }

    [[nodiscard]] Desktop_Windows& Its_Windows() { return windows_; }

private:
    Gate gate_;
    Session session_;
    Desktop_Windows windows_; // goes first, since its windows show the session
};

} // namespace kestrum::desktop
