#include "desktop/library_curve.h"

#include "desktop/theme.h"

#include <QPainter>

#include <algorithm>

namespace kestrum::desktop {

namespace {

using Points = std::vector<Lift_Point>;

/// The highest lift and flow of both sides.
Lift_Point Ends_Of(const Points& intake, const Points& exhaust) {
    Lift_Point ends;
    for (const Points* const points : {&intake, &exhaust}) {
        for (const Lift_Point& point : *points) {
            ends.lift = std::max(ends.lift, point.lift);
            ends.value = std::max(ends.value, point.value);
        }
    }
    return ends;
}

void Draw(QPainter& painter, const Points& points, const QRectF& room, const Lift_Point& ends) {
    QPolygonF line{room.bottomLeft()};
    for (const Lift_Point& point : points) {
        line << QPointF(room.left() + room.width() * point.lift / ends.lift,
                        room.bottom() - room.height() * point.value / ends.value);
    }
    painter.drawPolyline(line);
}

} // namespace

void Library_Curve::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    const Library_Entry* const entry = model_.Entry(index.row());
    if (entry == nullptr) {
        return;
    }
    const Library_Figures& figures = entry->figures;
    const Lift_Point ends = Ends_Of(figures.intake_curve, figures.exhaust_curve);
    if (!(ends.lift > 0) || !(ends.value > 0)) {
        return;
    }
    constexpr QMarginsF margins(5, 4, 5, 3);
    const QRectF room = QRectF(option.rect).marginsRemoved(margins);
    const bool is_chosen = option.state.testFlag(QStyle::State_Selected);
    const auto colour = [&](Side side) {
        return is_chosen ? option.palette.color(QPalette::HighlightedText)
                         : QColor::fromRgb(theme::Colours().Of(side).mark);
    };
    constexpr double thick = 1.8;
    constexpr double thin = 1.2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour(Side::Intake), thick));
    Draw(*painter, figures.intake_curve, room, ends);
    painter->setPen(QPen(colour(Side::Exhaust), thin, Qt::DashLine));
    Draw(*painter, figures.exhaust_curve, room, ends);
    painter->restore();
}

} // namespace kestrum::desktop
