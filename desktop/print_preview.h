#pragma once

#include "core/session.h"
#include "desktop/desktop_printers.h"
#include "desktop/gate.h"

#include <QMenuBar>

namespace kestrum::desktop {

/// Shows a print as it will come out, with the choice of paper, to be printed or saved as a PDF
/// file from there. It returns when the user has closed it.
void Show_Print_Preview(Desktop_Printers& printers, const std::string& device,
                        const Printable& printable);

/// Adds the entry for the preview to the menus of a screen that prints; others stay as they are.
void Add_Preview_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen);

} // namespace kestrum::desktop
