#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// The selection on the report screen as a file holds it. Counts the records in the session.
[[nodiscard]] std::string Report_Config_Text(Session& session, const Report_Screen& screen);

/// Asks for a file and saves the selection; what fails is told in a box.
void Save_Report_Config(Session& session, const Report_Screen& screen);

/// Asks for a file and takes the selection from it; what fails is told in a box.
void Load_Report_Config(Session& session, Report_Screen& screen);

/// Takes the selection from the content of a file. False when a bad record or the user ended that,
/// which boxes have told; what was set by then stays.
[[nodiscard]] bool Read_Report_Config(Session& session, Report_Screen& screen,
                                      std::string_view bytes);

} // namespace kestrum
