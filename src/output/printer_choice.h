#pragma once

#include "core/session.h"

namespace kestrum {

/// Shows the panel with the printers of the system; the default one is picked.
void Offer_Printers(Session& session);

/// Makes the picked printer the one for all prints and hides the panel. One that has gone in the
/// meantime leaves the old one in force.
void Put_Printer_In_Force(Session& session);

} // namespace kestrum
