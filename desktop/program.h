#pragma once

#include "core/session.h"
#include "desktop/desktop_printers.h"
#include "desktop/desktop_windows.h"
#include "desktop/gate.h"
#include "files/rescue.h"
#include "painting/qt_painter.h"

#include <QTimer>

#include <memory>

namespace kestrum::desktop {

/// One run of the desktop program: a session and its windows.
class Program {
public:
    Program(Dialogs& dialogs, const Surroundings& surroundings);

    /// Brings the session up to the moment when `Main` shows. Gives false when it failed.
    [[nodiscard]] bool Start();

    /// Offers what an earlier run left without its exit, and keeps copies from now on.
    void Keep_Rescue_Copies();

    /// The status that the process ends with.
    [[nodiscard]] int Exit_Status() const { return gate_.Has_Failed() ? 1 : 0; }

    [[nodiscard]] Session& Its_Session() { return session_; }

    [[nodiscard]] Desktop_Windows& Its_Windows() { return windows_; }

private:
    void End();

    Gate gate_;
    Session session_;
    std::unique_ptr<Rescue> rescue_;
    QTimer rescue_clock_;
    painting::Qt_Painter painter_;
    Desktop_Printers printers_;
    Desktop_Windows windows_; // goes first, since its windows show the session
};

} // namespace kestrum::desktop
