#pragma once

#include <QIcon>

namespace kestrum::desktop {

/// A poppet valve lifted off its seat, with the flow around it.
[[nodiscard]] QIcon Program_Icon();

} // namespace kestrum::desktop
