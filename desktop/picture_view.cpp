#include "desktop/picture_view.h"

#include "base/run_time_error.h"
#include "painting/picture_area.h"

#include <QPainter>

#include <algorithm>

namespace kestrum::desktop {

Picture_View::Picture_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    Picture_View::Refresh();
}

void Picture_View::Refresh() {
    Show_Common_State(*this, control);
    Load_Logo_Anew();
    update();
}

/// A file that cannot be shown by now is passed over: the session has told of it where it must.
void Picture_View::Load_Logo_Anew() {
    const std::optional<Placed_Logo> placed = facts.events.Logo();
    if (!placed) {
        logo_.reset();
        logo_file_.clear();
        return;
    }
    if (placed->file != logo_file_) {
        logo_file_ = placed->file;
        try {
            logo_ = painting::Load_Logo(*placed);
        } catch (const Run_Time_Error&) {
            logo_.reset();
        }
    }
    if (logo_) {
        logo_->left = placed->left;
        logo_->top = placed->top;
    }
}

QRect Picture_View::Area_In(const QRect& cell) const {
    // As many units wide as high.
    const QSizeF whole = painting::Whole_Area_Of(facts.events.Canvas()).size();
    const double scale = std::min(cell.width() / whole.width(), cell.height() / whole.height());
    const QSize size(static_cast<int>(whole.width() * scale),
                     static_cast<int>(whole.height() * scale));
    return {cell.topLeft() + QPoint((cell.width() - size.width()) / 2, 0), size};
}

void Picture_View::paintEvent(QPaintEvent* /*event*/) {
    // The paper ends below the last caption; the mouse may draw it longer.
    const QRectF shown = painting::Area_Of(facts.events.Canvas());
    const double dots_in_unit = width() / painting::Whole_Area_Of(facts.events.Canvas()).width();
    const QRectF paper(0, 0, width(), std::min(shown.height() * dots_in_unit, height() * 1.0));
    try {
        QPainter painter(this);
        painting::Paint_Picture(facts.events.Canvas(), logo_, painter, {shown, paper});
    } catch (...) {
        QPainter(this).fillRect(paper, Qt::white); // half a picture would tell something false
        throw;
    }
    QPainter painter(this);
    painter.setPen(QColor::fromRgb(theme::Colours().card_line));
    painter.drawRect(paper.toAlignedRect().adjusted(0, 0, -1, -1));
}

QPointF Picture_View::On_Canvas(const QPointF& place) const {
    const QRectF whole = painting::Whole_Area_Of(facts.events.Canvas());
    return whole.topLeft() + place * (whole.width() / std::max(width(), 1));
}

void Picture_View::Tell(Mouse_Action action, const QPointF& place) {
    QPointF point = On_Canvas(place);
    if (on_logo_ && logo_) {
        point -= QPointF(logo_->left, logo_->top);
    }
    facts.events.Mouse_On(control, on_logo_, action, point.x(), point.y());
}

void Picture_View::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        const QPointF point = On_Canvas(event->position());
        on_logo_ =
            logo_ &&
            QRectF(QPointF(logo_->left, logo_->top), QSizeF(logo_->image.size())).contains(point);
        Tell(Mouse_Action::Down, event->position());
    }
}

void Picture_View::mouseMoveEvent(QMouseEvent* event) {
    Tell(Mouse_Action::Move, event->position());
}

void Picture_View::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Tell(Mouse_Action::Up, event->position());
        on_logo_ = false;
    }
}

} // namespace kestrum::desktop
