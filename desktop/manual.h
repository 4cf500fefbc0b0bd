#pragma once

#include "core/session.h"
#include "screens/screen_id.h"

#include <QString>

namespace kestrum::desktop {

/// The heading of the manual that a screen is told under, as an anchor of its page.
[[nodiscard]] QString Chapter_Of(Screen_Kind kind);

/// The page beside the manual that leads to the chapter of a screen.
[[nodiscard]] QString Page_Of_Chapter(const QString& manual, Screen_Kind kind);

/// Opens the manual at the chapter of a screen. Gives what there is to tell the user.
[[nodiscard]] QString Open_Manual(Session& session, Screen_Kind kind);

} // namespace kestrum::desktop
