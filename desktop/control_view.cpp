#include "desktop/control_view.h"

#include "application/events.h"
#include "desktop/form_design.h"
#include "desktop/text_bridge.h"
#include "screens/screen.h"

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
    const Own_Words* const own = control.Is_Text_Box() ? nullptr : Own_Words_Of(control);
    if (own != nullptr && own->place.column < 0) {
        widget.setAccessibleName(To_Qt(own->words));
    }
}

bool Shows_Addresses() {
    return qEnvironmentVariableIntValue("KESTRUM_ADDRESSES") == 1;
}

QString Description_Of(const Control& control) {
    if (Shows_Addresses()) {
        return To_Qt(control.Address());
    }
    const Control_Entry& entry = control.Entry();
    if (!entry.tip.empty()) {
        return Lines_To_Qt(entry.tip).simplified();
    }
    if (entry.kind == Control_Kind::Option_Button && !entry.parent.empty()) {
        return To_Qt(control.Owner().Find(entry.parent, std::nullopt)->Text());
    }
    return {};
}

void Give_Description(QWidget& widget, const Control& control) {
    if (const QString words = Description_Of(control); !words.isEmpty()) {
        widget.setAccessibleDescription(words);
    }
}

} // namespace kestrum::desktop
