#pragma once

#include "core/session.h"

namespace kestrum::desktop {

/// Knows which control of a screen has the user's attention, and lets a field have its say when
/// the focus goes from it to another control of the screen. Boxes, menus, other windows and other
/// programs take the focus without moving it here.
class Focus_Keeper {
public:
    explicit Focus_Keeper(Session& session) : session_(session) {}

    /// The focus goes to a control. Gives whether it may stay there: the field that it left may
    /// have taken it back.
    bool Goes_To(Control& next);

    [[nodiscard]] bool Is_At(const Control& control) const { return held_ == &control; }

private:
    Session& session_;
    Control* held_ = nullptr;
    /// A check runs, and moves of the focus are its own.
    bool checking_ = false;
};

} // namespace kestrum::desktop
