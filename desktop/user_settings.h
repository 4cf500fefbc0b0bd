#pragma once

#include "screens/screen_id.h"

#include <QRect>
#include <QStringList>

#include <optional>

/// What the desktop remembers of its user between two starts, in the user's folder for settings.
/// Nothing of a calculation is among it; a folder that cannot be written to forgets it.
namespace kestrum::desktop::user_settings {

inline constexpr int most_recent_files = 10;

/// Files of a kind of screen that the user has loaded or saved, the last one first.
[[nodiscard]] QStringList Recent_Files(Screen_Kind kind);
void Note_Recent_File(Screen_Kind kind, const QString& path);

/// Where a window has stood, without what the window manager puts around it.
struct Window_Place {
    QRect area;
    bool maximized = false;
};

[[nodiscard]] std::optional<Window_Place> Kept_Place(const QString& window);
void Keep_Place(const QString& window, const Window_Place& place);

/// What was chosen of a setting by its name, as a whole number.
[[nodiscard]] std::optional<int> Kept_Choice(const QString& name);
void Keep_Choice(const QString& name, int value);

/// A place of which all can be seen and reached: moved into a display that is there, and no larger.
[[nodiscard]] QRect Brought_Back(const QRect& area, const QList<QRect>& displays);

} // namespace kestrum::desktop::user_settings
