#pragma once

#include "platform/dialogs.h"

#include <functional>

namespace kestrum::desktop {

/// The one way into the session. While a routine runs - a box may hold it for minutes - no other
/// event gets in, and no exception gets out into Qt's event loop: one that no routine handles is
/// shown and ends the program.
class Gate {
public:
    explicit Gate(Dialogs& dialogs) : dialogs_(dialogs) {}

    /// Runs an event. Gives false when it was not let in, or has ended the program.
    bool Enter(const std::function<void()>& act);

    /// Runs after each event that was let in.
    void Set_Follow_Up(std::function<void()> follow_up) { follow_up_ = std::move(follow_up); }

    /// Runs when a failure ends the program, before it is shown.
    void Set_Last_Act(std::function<void()> last_act) { last_act_ = std::move(last_act); }

    [[nodiscard]] bool Is_Busy() const { return busy_; }

    /// Whether a failure has ended the program.
    [[nodiscard]] bool Has_Failed() const { return failed_; }

private:
    void Fail(const std::string& message);

    Dialogs& dialogs_;
    std::function<void()> follow_up_;
    std::function<void()> last_act_;
    bool busy_ = false;
    bool failed_ = false;
};

} // namespace kestrum::desktop
