#pragma once

#include "core/session.h"

#include <map>
#include <string>

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

    /// A block came into a cell: it is left without a check until the user edits it.
    void Excuse(const Control& cell) { excused_[&cell] = cell.Text(); }

    void Edited(const Control& field) { excused_.erase(&field); }

    [[nodiscard]] bool Is_At(const Control& control) const { return held_ == &control; }

private:
    [[nodiscard]] bool Is_Excused(const Control& field) const;

    Session& session_;
    Control* held_ = nullptr;
    /// A check runs, and moves of the focus are its own.
    bool checking_ = false;
    /// Cells that hold what a block brought, and that text.
    std::map<const Control*, std::string> excused_;
};

} // namespace kestrum::desktop
