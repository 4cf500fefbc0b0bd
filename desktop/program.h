#pragma once

#include "application/undo_history.h"
#include "core/session.h"
#include "desktop/desktop_camera.h"
#include "desktop/desktop_printers.h"
#include "desktop/desktop_shell.h"
#include "desktop/desktop_windows.h"
#include "desktop/gate.h"
#include "desktop/last_act.h"
#include "files/rescue.h"
#include "painting/qt_painter.h"

#include <QTimer>

#include <memory>

namespace kestrum::desktop {

/// One run of the desktop program: a session and its windows.
class Program {
public:
    Program(Dialogs& dialogs, const Surroundings& surroundings);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    /// Brings the session up to the moment when `Main` shows. Gives false when it failed.
    [[nodiscard]] bool Start();

    /// Offers what an earlier run left without its exit, and keeps copies from now on, also when
    /// the system ends the program.
    void Keep_Rescue_Copies();

    /// Brings the copies of the last state between two commands to the disk, waiting some seconds
    /// at most: for an end that is not the exit.
    void Write_Rescue_Copies();

    /// The status that the process ends with.
    [[nodiscard]] int Exit_Status() const { return started_ ? 0 : 1; }

    /// Whether the exit has run: nothing may come to the session any more.
    [[nodiscard]] bool Has_Ended() const { return ended_; }

    [[nodiscard]] Session& Its_Session() { return session_; }

    [[nodiscard]] Desktop_Windows& Its_Windows() { return windows_; }

    [[nodiscard]] Gate& Its_Gate() { return gate_; }

    [[nodiscard]] Desktop_Printers& Its_Printers() { return printers_; }

private:
    void Set_Gate_Up();
    /// The system ends the program or the user's session: what stands on the screens is kept first.
    void Keep_Before_The_End();
    void End();

    Gate gate_;
    Session session_;
    Undo_History history_{session_};
    std::unique_ptr<Rescue> rescue_;
    QTimer rescue_clock_;
    std::unique_ptr<Last_Act> last_act_;
    bool started_ = false;
    /// `Main` has gone, and with it the session.
    bool ended_ = false;
    painting::Qt_Painter painter_;
    Desktop_Printers printers_;
    Desktop_Camera camera_;
    Desktop_Shell shell_;
    Desktop_Windows windows_; // goes first, since its windows show the session
};

} // namespace kestrum::desktop
