#pragma once

#include "desktop/focus_keeper.h"
#include "desktop/gate.h"

#include <QMenuBar>

namespace kestrum::desktop {

class Help_Line;

/// Adds what the File menus of `Main` and of the sheets offer besides the system's own entries: a
/// new test, and tests that have gone with their windows.
void Add_Test_Entries(QMenuBar& bar, Session& session, Gate& gate, Focus_Keeper& keeper,
                      Screen& screen);

/// Adds the manual, at the chapter of the window's screen, to the last menu, with its key.
void Add_Manual_Entry(QWidget& window, QMenuBar& bar, Session& session, Gate& gate,
                      const Screen& screen, Help_Line& help);

/// Adds the menu that leads from each window to the others, with its keys. Gives the window the
/// key that calculates, too.
void Add_Go_Menu(QWidget& window, QMenuBar& bar, Session& session, Gate& gate, Screen& screen);

} // namespace kestrum::desktop
