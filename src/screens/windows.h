#pragma once

namespace kestrum {

class Control;
class Screen;

/// What the routines of the system ask of the windows. A screen's state is changed before the call.
struct Windows {
    Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;
    virtual ~Windows() = default;

    virtual void Show(Screen& screen) = 0;

    /// A screen that shows already is asked for again.
    virtual void Raise(Screen& /*screen*/) {}

    /// Shows a screen again without moving the focus to it.
    virtual void Show_Behind(Screen& screen) { Show(screen); }

    virtual void Hide(Screen& screen) = 0;
    /// The screen is about to be destroyed with all its controls.
    virtual void Unload(Screen& screen) = 0;
    virtual void Focus(Control& control) = 0;

    /// A box is about to hold a routine: what it has changed so far should show behind the box.
    virtual void Show_Changes() {}
};

} // namespace kestrum
