#pragma once

#include "platform/end_signals.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace kestrum::desktop {

/// Lets the program do a last act when a signal of the system ends it. The act runs in the event
/// loop, then the signal takes its usual course.
class Last_Act {
public:
    explicit Last_Act(std::function<void()> act);

private:
    void Do();

    std::function<void()> act_;
    End_Signals signals_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace kestrum::desktop
