#pragma once

#include "core/session.h"

namespace kestrum {

/// The text report while its viewer shows it, else empty.
struct Report_State {
    std::string text;
};

[[nodiscard]] inline Report_State& Report_Of(Session& session) {
    return session.wings.Of<Report_State>();
}

[[nodiscard]] inline const Report_State& Report_Of(const Session& session) {
    return session.wings.Of<Report_State>();
}

/// Builds the report of what is ticked on `Form70` and shows it in the viewer. Every sheet that
/// takes part is calculated on the way and shows its boxes. Raises the errors of the valve counts,
/// and those of port energies that cannot be worked out; the report has no handler for them.
void Create_Text_Report(Session& session);

/// The report as a file holds it: the text of the viewer and one more line end.
[[nodiscard]] std::string Report_Page(const Session& session);

/// Asks for a file and writes the report to it; what fails there is told in a box.
void Save_Report_Page(Session& session);

/// A key on the viewer. "." saves the page first, and every key that yields a character, Enter,
/// Esc, Backspace and the blank among them, closes the viewer. The characters of Ctrl shortcuts
/// do nothing.
void Press_Key_On_Report(Session& session, char32_t character);

/// Unticks or ticks all sheets, columns and the engine screen.
void Tick_All_For_Report(Report_Screen& choice, bool ticked);

} // namespace kestrum
