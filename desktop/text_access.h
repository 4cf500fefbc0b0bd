#pragma once

namespace kestrum::desktop {

/// Lets assistive technology and test tools read the cells that are no widgets of Qt's own.
void Install_Text_Access();

} // namespace kestrum::desktop
