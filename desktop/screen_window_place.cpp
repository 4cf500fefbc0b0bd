// Where the window of a screen opens, and how large.

#include "desktop/body.h"
#include "desktop/help_line.h"
#include "desktop/screen_window.h"
#include "desktop/window_place.h"
#include "screens/geometry.h"

#include <QHideEvent>
#include <QLayout>
#include <QMenu>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace kestrum::desktop {

QSize Screen_Window::Room() const {
    return screen()->availableSize() - window_frame;
}

QSize Screen_Window::Usual_Size() const {
    return (sizeHint() * Design_Of(*screen_, "").opening_scale).boundedTo(Room());
}

/// A screen that was stretched to its display takes the size and the place that this gave it, as
/// far as the free part of the display goes.
void Screen_Window::Take_Stretched_Place() {
    scale_ = screen_->scale;
    const Twips place = Place_In_Twips(*screen_);
    const QSizeF wanted(place.width / twips_per_pixel, place.height / twips_per_pixel);
    setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    const QSize usual = sizeHint();
    const QSize taken = wanted.toSize().expandedTo(usual).boundedTo(Room());
    Stretch_Letters(
        std::min(1.0 * taken.width() / usual.width(), 1.0 * taken.height() / usual.height()));
    resize(taken);
    const QRect room = screen()->availableGeometry();
    const QSize free = room.size() - (size() + window_frame);
    constexpr int least_gap = 25;
    const int above = free.height() / 2 <= least_gap ? 0 : free.height() / 4;
    move(room.topLeft() + QPoint(free.width() / 2, above));
}

/// Those of the menus, the help line and the report; the pages see to their own.
void Screen_Window::Stretch_Letters(double growth) {
    setFont(theme::Text_Font(
        std::max(1.0, std::floor(theme::text_pixels * growth) / theme::text_pixels)));
    for (QMenu* const menu : findChildren<QMenu*>()) {
        menu->setFont(font());
    }
    layout()->setContentsMargins(0, 0, 0, help_->Least_Height());
}

/// Larger letters get a larger window where the display has the room.
void Screen_Window::Grow_From(const QSize& page_before) {
    body_->Place_Pages();
    if (!placed_ || isMaximized()) {
        return;
    }
    const QSize now = body_->sizeHint();
    const QSizeF grown(width() * (1.0 * now.width() / page_before.width()),
                       height() * (1.0 * now.height() / page_before.height()));
    resize(grown.toSize().expandedTo(size()).boundedTo(Room()));
    const QRect room = screen()->availableGeometry();
    const QPoint last = room.bottomRight() - QPoint(width(), height()) -
                        QPoint(window_frame.width(), window_frame.height());
    move(QPoint(std::max(room.left(), std::min(x(), last.x())),
                std::max(room.top(), std::min(y(), last.y()))));
}

/// A place that the user did not choose, as on a display that the screens are stretched to, is not
/// kept.
void Screen_Window::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    const bool is_stretched = scale_ != Screen_Scale();
    if (placed_ && !event->spontaneous() && !is_stretched) {
        Keep_Place_Of(*this);
    }
}

void Screen_Window::Open() {
    Show_Title();
    if (!placed_) {
        placed_ = true;
        if (scale_ != screen_->scale) {
            Take_Stretched_Place();
        } else if (!Take_Kept_Place(*this)) {
            resize(Usual_Size());
            const QRect framed({}, size() + window_frame);
            move(screen()->availableGeometry().center() - framed.center());
        }
    } else {
        move(pos()); // a window manager would else place it anew
    }
    show();
    Bring_To_Front();
}

} // namespace kestrum::desktop
