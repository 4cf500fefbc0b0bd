#pragma once

#include <QSize>
#include <QWidget>

namespace kestrum::desktop {

/// About what a window manager puts around a window.
inline constexpr QSize window_frame{8, 32};

/// Puts a window where it stood when it was used last, brought back onto the displays; false when
/// that is not known. A maximized one has the usual place below it.
bool Take_Kept_Place(QWidget& window);

/// Gives a window the size that it had last, for one that may be opened several times.
void Take_Kept_Size(QWidget& window);

/// Keeps the place of a window that goes from the display.
void Keep_Place_Of(const QWidget& window);

} // namespace kestrum::desktop
