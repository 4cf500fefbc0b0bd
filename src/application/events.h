#pragma once

#include "core/cell_block.h"
#include "core/session.h"
#include "output/graph_mouse.h"

#include <vector>

namespace kestrum {

// What the user does, as both faces hand it on. An error that no routine handles comes out as
// `Run_Time_Error`: the script interface shows it and ends, the desktop takes the event back.

/// A click on a button, a menu entry, a label, a check box or an option button. A check box
/// changes its state first, an option button is set and its siblings are cleared. A disabled
/// control does nothing.
void Click(Session& session, Control& control);

/// The user picks a text of a combo box. One that is none of its entries cannot be picked.
void Select(Session& session, Control& combo, std::string_view text);

/// The focus leaves a field for another control of its screen: the field's check runs.
void Leave(Session& session, Control& field);

/// The texts of a block come into its cells. None of the fields is left, so no check runs, but the
/// lifts come to the second lift column as if they had been typed.
void Enter_Block(Session& session, const std::vector<New_Text>& texts);

/// The mouse moves over a control, or over the bare form.
void Hover_Over(Control& control);
void Hover_Over_Form(Screen& screen);

/// The mouse on a picture, in the picture's own units.
void Mouse_On_Picture(Session& session, Control& picture, Mouse_Action action, double x, double y);

/// Whether key presses on a control go to a routine of their own instead of typing into it, as on
/// the viewer of the report.
[[nodiscard]] bool Takes_Raw_Keys(const Control& control);
/// A key that yields a character is pressed on such a control.
void Press_Raw_Key(Session& session, const Control& control, char32_t character);

/// The user closes a screen's window by its frame.
void Close_Window(Session& session, Screen& screen);

/// Whether a click on the control has a routine; a face disables the controls that have none yet.
[[nodiscard]] bool Has_Routine(const Control& control);

} // namespace kestrum
