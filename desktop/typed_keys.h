#pragma once

#include <QKeyEvent>

namespace kestrum::desktop {

/// Whether the modifiers make a key a shortcut. Control and Alt together are the AltGr key of some
/// systems, which types a character.
[[nodiscard]] inline bool Is_Shortcut(const QKeyEvent& event) {
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
    return control != alt || (event.modifiers() & Qt::MetaModifier) != 0;
}

/// A shortcut as an editor may have it: one that it does not know must not type its letter.
[[nodiscard]] inline QKeyEvent Without_Text(const QKeyEvent& event) {
    return {event.type(), event.key(),          event.modifiers(),
            QString(),    event.isAutoRepeat(), static_cast<quint16>(event.count())};
}

} // namespace kestrum::desktop
