#include "desktop/block_veil.h"

#include "desktop/theme.h"

#include <QEvent>
#include <QPainter>
#include <QRegion>
#include <QTimer>

namespace kestrum::desktop {

Block_Veil::Block_Veil(Page& page) : QWidget(&page), page_(page) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    page.installEventFilter(this);
}

void Block_Veil::Show_Over(const Block& block, const Spot& began_with) {
    block_ = block;
    began_with_ = began_with;
    Take_Place();
    raise(); // a cell may have been added since
    show();
    update();
}

/// No more than the block is covered: what lies below is painted whenever the veil is.
void Block_Veil::Take_Place() {
    setGeometry(Area_Of(block_).adjusted(-1, -1, 1, 1));
}

bool Block_Veil::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        QTimer::singleShot(0, this, [this] { Take_Place(); }); // the page moves its cells first
    }
    return QWidget::eventFilter(watched, event);
}

QRect Block_Veil::Area_Of(const Block& block) const {
    return page_
        .Area_Of({.column = block.first.column,
                  .row = block.first.row,
                  .columns = block.last.column - block.first.column + 1,
                  .rows = block.last.row - block.first.row + 1})
        .adjusted(0, 0, -1, -1);
}

void Block_Veil::paintEvent(QPaintEvent* /*event*/) {
    constexpr int thickness = 2;
    const QRect whole = Area_Of(block_);
    const QRect clear = Area_Of({.first = began_with_, .last = began_with_});
    QPainter painter(this);
    painter.translate(-pos());
    painter.setClipRegion(QRegion(whole) - clear);
    painter.fillRect(whole, QColor::fromRgba(theme::Colours().block_veil));
    painter.setClipping(false);
    painter.setPen(QPen(QColor::fromRgb(theme::Colours().accent), thickness, Qt::SolidLine,
                        Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(whole);
}

} // namespace kestrum::desktop
