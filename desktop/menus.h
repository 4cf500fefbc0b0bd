#pragma once

#include "desktop/control_view.h"

#include <QMenuBar>

#include <functional>

namespace kestrum::desktop {

/// Fills a menu bar with the menu entries of a screen. Each entry's view is handed to `made`.
void Fill_Menus(QMenuBar& bar, Screen& screen, View_Host& events,
                const std::function<void(Control_View&)>& made);

} // namespace kestrum::desktop
