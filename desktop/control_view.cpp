#include "desktop/control_view.h"

#include "application/events.h"
#include "desktop/text_bridge.h"

namespace kestrum::desktop {

namespace {

/// A button without a routine can do nothing yet. Boxes and options hold a state that others read,
/// except those of `Main`, which switch something when they are clicked.
bool Can_Do_Something(const Control& control) {
    switch (control.Entry().kind) {
    case Control_Kind::Button:
        return Has_Routine(control);
    case Control_Kind::Check_Box:
        return Has_Routine(control) || control.Owner().Kind() != Screen_Kind::Engine;
    default:
        return true;
    }
}

} // namespace

void Show_Common_State(QWidget& widget, const Control& control) {
    const Look& look = control.Present_Look();
    const bool enabled = look.enabled && Can_Do_Something(control);
    if (widget.isEnabledTo(widget.parentWidget()) != enabled) {
        widget.setEnabled(enabled);
    }
    if (control.Entry().kind != Control_Kind::Label) {
        widget.setFocusPolicy(look.tab_stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
    // A child that nobody has hidden shows with its parent.
    const bool hidden = widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (hidden == look.visible) {
        widget.setVisible(look.visible);
    }
}

Qt::Alignment Alignment_Of(const Control& control) {
    switch (control.Present_Look().alignment) {
    case Alignment::Right:
        return Qt::AlignRight;
    case Alignment::Center:
        return Qt::AlignHCenter;
    case Alignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

void Give_Name(QWidget& widget, const Control& control) {
    widget.setObjectName(To_Qt(control.Address()));
}

void Give_Description(QWidget& widget) {
    widget.setAccessibleDescription(widget.objectName());
}

} // namespace kestrum::desktop
