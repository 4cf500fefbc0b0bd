#pragma once

#include "core/session.h"
#include "desktop/gate.h"

#include <QMenuBar>

namespace kestrum::desktop {

/// Adds the menu of the files that were used last to the File menu of `Main` or of a sheet.
void Add_Recent_Menu(QMenuBar& bar, Session& session, Gate& gate, Screen& screen);

/// Notes what the session has loaded and saved for the user.
void Note_Used_Files(Session& session);

} // namespace kestrum::desktop
