#pragma once

#include "core/session.h"
#include "desktop/gate.h"

#include <QMenuBar>

namespace kestrum::desktop {

/// Adds "Tests > Library" to the menus of `Main` and of the sheets, and a button for it at the end
/// of the bar. A sheet takes tests that are dragged onto it from the list.
void Add_Library_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen);

} // namespace kestrum::desktop
