#pragma once

#include "core/session.h"

namespace kestrum {

/// Asks for a font; the answer goes to the session's answers, a cancel leaves the old one there.
/// `shown` is what the dialog begins with.
void Pick_Font(Session& session, const Font& shown);

/// How the size of the font that was answered is meant.
enum class Font_Size {
    As_Seen,    // on the screen as it stands
    As_Designed // on a screen of design size: it grows with a stretched one
};

// Each gives the font in the session's answers to its boxes: to all of the engine screen, or of the
// sheets and the comparison, or to those of them that the user can type in at this moment. None
// does anything after a cancel. A text that is no size raises 13, an impossible size or an empty
// name 380, with no box changed.

void Apply_All_Box_Main(Session& session, Font_Size meaning = Font_Size::As_Seen);
void Apply_Entry_Box_Main(Session& session, Font_Size meaning = Font_Size::As_Seen);
void Apply_All_Box_Flow(Session& session, Font_Size meaning = Font_Size::As_Seen);
void Apply_Entry_Box_Flow(Session& session, Font_Size meaning = Font_Size::As_Seen);

} // namespace kestrum
