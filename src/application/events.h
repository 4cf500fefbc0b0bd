#pragma once

#include "core/session.h"
#include "output/graph_mouse.h"

namespace kestrum {

// What the user does, as both faces hand it on. An error that no routine handles comes out as
// `Run_Time_Error`; the face shows it and ends the program.

/// A click on a button, a menu entry, a label, a check box or an option button. A check box
/// changes its state first, an option button is set and its siblings are cleared. A disabled
/// control does nothing.
void Click(Session& session, Control& control);

/// The user picks a text of a combo box.
void Select(Session& session, Control& combo, std::string_view text);

/// The focus leaves a field for another control of its screen: the field's check runs.
void Leave(Session& session, Control& field);

/// The mouse moves over a control, or over the bare form.
void Hover_Over(Control& control);
void Hover_Over_Form(Screen& screen);

/// The mouse on a picture, in the picture's own units.
void Mouse_On_Picture(Session& session, Control& picture, Mouse_Action action, double x, double y);

/// The user closes a screen's window by its frame.
void Close_Window(Session& session, Screen& screen);

/// Whether a click on the control has a routine; a face disables the controls that have none yet.
[[nodiscard]] bool Has_Routine(const Control& control);

} // namespace kestrum
