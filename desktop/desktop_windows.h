#pragma once

#include "desktop/gate.h"
#include "desktop/screen_window.h"
#include "screens/windows.h"

#include <functional>
#include <map>

namespace kestrum::desktop {

/// The windows of the screens: each is made when its screen first shows and goes with it.
class Desktop_Windows : public Windows {
public:
    explicit Desktop_Windows(Gate& gate) : gate_(gate) {}

    ~Desktop_Windows() override;

    /// The session needs the windows before the windows can have the session.
    void Take_Session(Session& session) { session_ = &session; }

    void Show(Screen& screen) override;
    void Raise(Screen& screen) override;
    void Show_Behind(Screen& screen) override;
    void Hide(Screen& screen) override;
    void Unload(Screen& screen) override;
    void Focus(Control& control) override;

    void Show_Changes() override { Refresh(); }

    /// Tells the user something in the help line of the window that is in use.
    void Say(const QString& words) const;

    /// Shows what an event has changed.
    void Refresh();

    /// The window of a screen, or null.
    [[nodiscard]] Screen_Window* Window_Of(const Screen& screen) const;

    /// Runs when `Main` has gone.
    std::function<void()> on_end;
    /// Runs when a window has been made.
    std::function<void(Screen_Window&, const Screen&)> on_new_window;

private:
    Gate& gate_;
    Session* session_ = nullptr;
    std::map<const Screen*, Screen_Window*> windows_;
};

} // namespace kestrum::desktop
