#include "desktop/chart_view.h"

#include "chart/chart_picture.h"
#include "chart/figure_text.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "painting/figure_painter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace kestrum::desktop {

namespace {

/// The chart's colours on the desktop's own ground.
Chart_Colours Colours_Of_Desktop() {
    const Colour_Scheme& scheme = theme::Colours();
    constexpr int half = 128;
    const bool is_dark = qGray(scheme.card) < half;
    Chart_Colours colours = is_dark ? Dark_Chart() : Light_Chart();
    constexpr QRgb opaque = 0xFF000000U;
    colours.ground = static_cast<int>(scheme.card & ~opaque);
    colours.ink = static_cast<int>(scheme.ink & ~opaque);
    return colours;
}

} // namespace

Chart_View::Chart_View(QWidget* parent) : QWidget(parent) {
    constexpr QSize least(520, 330);
    setMinimumSize(least);
    setAccessibleName(QStringLiteral("Chart"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setToolTip(QStringLiteral("Wheel: larger and smaller, drag: move, double click: whole chart"));
    setToolTipDuration(2000);
}

/// Letters of the chart are set in points of paper; on a screen they want to be larger, and larger
/// yet for those who have chosen large letters.
double Chart_View::Scale() const {
    constexpr double usual = 1.3;
    constexpr double usual_dots = 96; // in an inch
    return usual * logicalDpiX() / usual_dots;
}

Figure_Point Chart_View::In_Chart(QPointF place) const {
    return {.x = place.x() / Scale(), .y = place.y() / Scale()};
}

void Chart_View::Show_Chart(Chart chart, const Chart_Style& style) {
    const Chart_Part before = layout_.whole;
    const std::optional<Chart_Part> part = style_.part;
    chart_ = std::move(chart);
    style_ = style;
    style_.part.reset();
    Lay_Out();
    if (part && layout_.whole == before) {
        Show_Part(*part);
    }
}

void Chart_View::Show_Whole() {
    style_.part.reset();
    Lay_Out();
}

void Chart_View::Lay_Out() {
    style_.colours = Colours_Of_Desktop();
    constexpr double margin = 8;
    layout_ = Layout_Of(chart_, style_,
                        {margin, margin, width() / Scale() - margin, height() / Scale() - margin});
    if (lift_ && (*lift_ < layout_.main.lifts.low || *lift_ > layout_.main.lifts.high)) {
        lift_.reset();
    }
    ground_ = {};
    setCursor(style_.part ? Qt::OpenHandCursor : Qt::ArrowCursor);
    update();
}

void Chart_View::Show_Part(const Chart_Part& part) {
    style_.part = part == layout_.whole ? std::nullopt : std::optional(part);
    Lay_Out();
}

void Chart_View::Paint_Ground() {
    ground_ = QPixmap(size() * devicePixelRatioF());
    ground_.setDevicePixelRatio(devicePixelRatioF());
    ground_.fill(QColor(QRgb(layout_.Colours().ground)));
    QPainter painter(&ground_);
    painter.scale(Scale(), Scale());
    Figure figure(width() / Scale(), height() / Scale());
    Draw_Curves(figure, layout_);
    painting::Paint_Figure(figure, painter);
}

/// The mouse moves often: the curves are painted once, and what is read each time.
void Chart_View::paintEvent(QPaintEvent* /*event*/) {
    if (ground_.isNull()) {
        Paint_Ground();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, ground_);
    painter.scale(Scale(), Scale());
    Figure figure(width() / Scale(), height() / Scale());
    if (lift_ && !chart_.tests.empty()) {
        Draw_Reading(figure, layout_, *lift_);
    } else {
        Draw_End_Figures(figure, layout_);
    }
    painting::Paint_Figure(figure, painter);
}

void Chart_View::resizeEvent(QResizeEvent* /*event*/) {
    Lay_Out();
}

void Chart_View::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        Lay_Out();
    }
}

void Chart_View::Read_At(std::optional<double> lift) {
    if (lift_ != lift) {
        lift_ = lift;
        update();
    }
}

void Chart_View::Zoom(const Lift_Point& about, const Chart_Zoom& zoom) {
    Show_Part(Zoomed(layout_.Part(), layout_.whole, about, zoom));
}

void Chart_View::Move(double lifts, double values) {
    const Chart_Part part = layout_.Part();
    Show_Part(Moved(part, layout_.whole,
                    {.lift = lifts * (part.last_lift - part.first_lift),
                     .value = values * (part.high - part.low)}));
}

Lift_Point Chart_View::Middle() const {
    const Chart_Part part = layout_.Part();
    return {.lift = lift_.value_or((part.first_lift + part.last_lift) / 2),
            .value = (part.low + part.high) / 2};
}

void Chart_View::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        const Figure_Box& box = layout_.main.box;
        const QPointF way = (event->position() - grip_) / Scale();
        grip_ = event->position();
        Move(-way.x() / box.Width(), way.y() / box.Height());
    }
    constexpr double reach = 3;
    Read_At(layout_.Lift_At(In_Chart(event->position()), reach));
}

void Chart_View::mousePressEvent(QMouseEvent* event) {
    grip_ = event->position();
    if (style_.part) {
        setCursor(Qt::ClosedHandCursor);
    }
}

void Chart_View::mouseReleaseEvent(QMouseEvent* /*event*/) {
    setCursor(style_.part ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void Chart_View::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    Show_Whole();
}

void Chart_View::leaveEvent(QEvent* /*event*/) {
    Read_At(std::nullopt);
}

void Chart_View::wheelEvent(QWheelEvent* event) {
    constexpr double notch = 120;
    constexpr double step = 1.2;
    // With Alt or Shift some systems turn the wheel sideways.
    const QPoint turn = event->angleDelta();
    const double zoom = std::pow(step, (turn.y() != 0 ? turn.y() : turn.x()) / notch);
    const Figure_Point place = In_Chart(event->position());
    const bool lifts_alone = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool values_alone = event->modifiers().testFlag(Qt::ControlModifier);
    Zoom({.lift = layout_.main.Lift_At(place.x), .value = layout_.main.Value_At(place.y)},
         {.lifts = values_alone ? 1 : zoom, .values = lifts_alone ? 1 : zoom});
    event->accept();
}

void Chart_View::Step_Reading(int steps) {
    constexpr double steps_across = 60;
    const Chart_Part part = layout_.Part();
    const double step = (part.last_lift - part.first_lift) / steps_across;
    const double from = lift_.value_or(steps > 0 ? part.first_lift : part.last_lift);
    Read_At(std::clamp(from + steps * step, part.first_lift, part.last_lift));
    // For those who hear the chart.
    QString words;
    for (const Chart_Row row = Row_At(chart_, *lift_); const End_Label& label : layout_.labels) {
        const auto& value = row.cells[label.side][label.test].value;
        words += To_Qt(label.name) + QLatin1Char(' ') +
                 To_Qt(Fixed_Text(value, chart_.request.Unit().decimals)) + QStringLiteral("; ");
    }
    setAccessibleDescription(To_Qt(Lift_Text(*lift_, chart_.request.lift_unit)) +
                             QStringLiteral(": ") + words);
}

void Chart_View::keyPressEvent(QKeyEvent* event) {
    constexpr double step = 1.2;
    constexpr double share = 0.1;
    const bool moves = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return Zoom(Middle(), {.lifts = step, .values = step});
    case Qt::Key_Minus:
        return Zoom(Middle(), {.lifts = 1 / step, .values = 1 / step});
    case Qt::Key_Left:
        return moves ? Move(-share, 0) : Step_Reading(-1);
    case Qt::Key_Right:
        return moves ? Move(share, 0) : Step_Reading(1);
    case Qt::Key_Up:
        return Move(0, share);
    case Qt::Key_Down:
        return Move(0, -share);
    case Qt::Key_Home:
    case Qt::Key_0:
        return Show_Whole();
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace kestrum::desktop
