#include "desktop/picture_view.h"

#include <QPainter>

#include <algorithm>

namespace kestrum::desktop {

Picture_View::Picture_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    Refresh();
}

void Picture_View::Refresh() {
    Show_Common_State(*this, control);
    update();
}

QRect Picture_View::Area_In(const QRect& cell) const {
    // As many units wide as high.
    const int side = std::min(cell.width(), cell.height());
    return {cell.left() + (cell.width() - side) / 2, cell.top() + (cell.height() - side) / 2, side,
            side};
}

void Picture_View::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(QColor::fromRgb(theme::card_line));
    painter.setBrush(QColor::fromRgb(theme::card));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace kestrum::desktop
