#include "desktop/picture_view.h"

#include "base/run_time_error.h"
#include "desktop/crisp.h"
#include "painting/picture_area.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrum::desktop {

Picture_View::Picture_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setAccessibleDescription(QStringLiteral(
        "The arrow keys move a cross, with Shift by ten. Space begins a line and ends it."));
    cross_ = painting::Whole_Area_Of(facts.events.Canvas()).center();
    Picture_View::Refresh();
}

void Picture_View::Refresh() {
    Show_Common_State(*this, control);
    setFocusPolicy(Qt::TabFocus);
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
    if (hasFocus()) {
        const Crisp crisp(painter);
        crisp.Frame(crisp.Dots_Of(paper), crisp.Dots_In(2), theme::Colours().accent);
        Paint_Cross(painter);
    }
}

/// Light and dark, so that it shows on the paper and on every curve.
void Picture_View::Paint_Cross(QPainter& painter) const {
    constexpr int arm = 9;
    const QPointF middle = Cross();
    for (const auto& [colour, width] : {std::pair(QColor(Qt::white), 5), {QColor(Qt::black), 1}}) {
        painter.setPen(QPen(colour, width));
        painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
        painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
    }
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
        Press_At(event->position());
    }
}

void Picture_View::Press_At(const QPointF& place) {
    on_logo_ = logo_ && QRectF(QPointF(logo_->left, logo_->top), QSizeF(logo_->image.size()))
                            .contains(On_Canvas(place));
    Tell(Mouse_Action::Down, place);
}

void Picture_View::Release_At(const QPointF& place) {
    Tell(Mouse_Action::Up, place);
    on_logo_ = false;
}

void Picture_View::mouseMoveEvent(QMouseEvent* event) {
    Tell(Mouse_Action::Move, event->position());
}

void Picture_View::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Release_At(event->position());
    }
}

// Without a mouse

QPointF Picture_View::Cross() const {
    const QRectF whole = painting::Whole_Area_Of(facts.events.Canvas());
    return (cross_ - whole.topLeft()) * (width() / whole.width());
}

void Picture_View::Move_Cross(const QPointF& units) {
    const QRectF whole = painting::Whole_Area_Of(facts.events.Canvas());
    cross_.setX(std::clamp(cross_.x() + units.x(), whole.left(), whole.right()));
    cross_.setY(std::clamp(cross_.y() + units.y(), whole.top(), whole.bottom()));
    Tell(Mouse_Action::Move, Cross());
    update();
}

void Picture_View::keyPressEvent(QKeyEvent* event) {
    const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return Move_Cross({-step, 0});
    case Qt::Key_Right:
        return Move_Cross({step, 0});
    case Qt::Key_Up:
        return Move_Cross({0, -step});
    case Qt::Key_Down:
        return Move_Cross({0, step});
    case Qt::Key_Space:
        held_by_key_ = !held_by_key_;
        return held_by_key_ ? Press_At(Cross()) : Release_At(Cross());
    default:
        Widget_View::keyPressEvent(event);
    }
}

void Picture_View::focusInEvent(QFocusEvent* event) {
    Widget_View::focusInEvent(event);
    Tell(Mouse_Action::Move, Cross());
    update();
}

void Picture_View::focusOutEvent(QFocusEvent* event) {
    if (held_by_key_) {
        held_by_key_ = false;
        Release_At(Cross());
    }
    update();
    Widget_View::focusOutEvent(event);
}

} // namespace kestrum::desktop
