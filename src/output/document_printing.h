#pragma once

#include "core/session.h"
#include "drawing/paper.h"

namespace kestrum {

/// The printer for all prints. Raises 482 when there is none, or when the chosen one has gone.
[[nodiscard]] std::string Printer_In_Force(const Session& session);

/// Prints on the printer in force. A failure is told in a box and stops nothing: a desktop without
/// a printer is an ordinary one.
void Print_Document(Session& session, const Document& document);

/// Prints a screen as it stands, as one picture on one page, in the same way.
void Print_Screen(Session& session, const Screen& screen);

} // namespace kestrum
