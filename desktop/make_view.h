#pragma once

#include "desktop/control_view.h"

namespace kestrum::desktop {

/// Makes the widget that shows a control, by the kind that its table line names. `over_a_cell`: a
/// field stands in the same place.
[[nodiscard]] Control_View& Make_View(Control& control, const View_Facts& facts, QWidget* parent,
                                      bool over_a_cell);

} // namespace kestrum::desktop
