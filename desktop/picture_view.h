#pragma once

#include "desktop/control_view.h"

namespace kestrum::desktop {

/// The canvas of the graph and the place of the logo.
class Picture_View : public Widget_View<QWidget> {
public:
    Picture_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kestrum::desktop
