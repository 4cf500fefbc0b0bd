#include "desktop/body.h"

#include "desktop/page.h"

#include <QCoreApplication>
#include <QWheelEvent>

#include <algorithm>

namespace kestrum::desktop {

std::vector<Page*> Body::Pages() const {
    std::vector<Page*> pages;
    for (QObject* const child : children()) {
        if (auto* const page = dynamic_cast<Page*>(child)) {
            pages.push_back(page);
        }
    }
    return pages;
}

QSize Body::sizeHint() const {
    QSize size;
    for (const Page* const page : Pages()) {
        size = size.expandedTo(page->sizeHint());
    }
    return size;
}

QSize Body::minimumSizeHint() const {
    constexpr QSize least(320, 240);
    return least.boundedTo(sizeHint());
}

void Body::Place_Pages() {
    QSize least;
    for (const Page* const page : Pages()) {
        least = least.expandedTo(page->minimumSizeHint());
    }
    QSize room = size();
    if (!Can_Scroll() && (least.width() > room.width() || least.height() > room.height())) {
        Make_Bars();
    }
    if (Can_Scroll()) {
        const int thickness = bars_[0]->sizeHint().height();
        const bool down = least.height() > room.height();
        const bool across = least.width() > room.width() - (down ? thickness : 0);
        room -=
            QSize(down || least.height() > room.height() - (across ? thickness : 0) ? thickness : 0,
                  across ? thickness : 0);
        Place_Bars(room, least.expandedTo(room));
    }
    for (Page* const page : Pages()) {
        page->resize(least.expandedTo(room));
    }
    Move_Pages();
}

void Body::Make_Bars() {
    for (const Qt::Orientation way : {Qt::Horizontal, Qt::Vertical}) {
        QScrollBar*& bar = bars_[way == Qt::Horizontal ? 0 : 1];
        bar = new QScrollBar(way, this);
        connect(bar, &QScrollBar::valueChanged, this, [this] { Move_Pages(); });
    }
}

void Body::Place_Bars(const QSize& room, const QSize& whole) {
    constexpr int step = 20;
    const std::array over{whole.width() - room.width(), whole.height() - room.height()};
    for (std::size_t way = 0; way < bars_.size(); ++way) {
        bars_[way]->setRange(0, over[way]);
        bars_[way]->setSingleStep(step);
        bars_[way]->setPageStep(way == 0 ? room.width() : room.height());
        bars_[way]->setVisible(over[way] > 0);
        bars_[way]->raise();
    }
    bars_[0]->setGeometry(0, room.height(), room.width(), height() - room.height());
    bars_[1]->setGeometry(room.width(), 0, width() - room.width(), room.height());
}

void Body::Move_Pages() {
    const QPoint corner = Can_Scroll() ? QPoint(-bars_[0]->value(), -bars_[1]->value()) : QPoint();
    for (Page* const page : Pages()) {
        page->move(corner);
    }
}

void Body::Reveal(const QWidget& widget) {
    if (!Can_Scroll() || !isAncestorOf(&widget)) {
        return;
    }
    const QRect area(widget.mapTo(this, QPoint()), widget.size());
    const auto move = [](QScrollBar& bar, int first, int last) {
        if (first < 0) {
            bar.setValue(bar.value() + first);
        } else if (last > bar.pageStep()) {
            bar.setValue(bar.value() + last - bar.pageStep());
        }
    };
    move(*bars_[0], area.left(), area.right() + 1);
    move(*bars_[1], area.top(), area.bottom() + 1);
}

void Body::resizeEvent(QResizeEvent* /*event*/) {
    Place_Pages();
}

void Body::wheelEvent(QWheelEvent* event) {
    if (Can_Scroll()) {
        const bool across = std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y());
        QCoreApplication::sendEvent(bars_[across ? 0 : 1], event);
    }
}

} // namespace kestrum::desktop
