#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace kestrum::desktop {

/// Lets the program do a last act when the system ends it: on SIGTERM, SIGHUP and SIGINT. The act
/// runs in the event loop, then the signal takes its usual course. A signal that the caller of the
/// program has switched off stays off, and one that comes a second time ends the program at once.
class End_Signals {
public:
    explicit End_Signals(std::function<void()> last_act);
    End_Signals(const End_Signals&) = delete;
    End_Signals& operator=(const End_Signals&) = delete;
    ~End_Signals();

private:
    void End();

    std::function<void()> last_act_;
    int reading_end_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace kestrum::desktop
