#pragma once

#include <QPainter>
#include <QRect>
#include <QRectF>
#include <QRgb>

namespace kestrum::desktop {

/// Paints frames that begin and end on whole dots of the display. At 125 or 150 % a unit is no
/// whole number of dots, and a line one unit wide would come out thick, thin or not at all.
class Crisp {
public:
    explicit Crisp(QPainter& painter);

    /// The dots that an area takes. Areas that touch take dots that touch.
    [[nodiscard]] QRect Dots_Of(const QRectF& area) const;
    /// A number of units in dots, at least one.
    [[nodiscard]] int Dots_In(double units) const;

    void Fill(const QRect& dots, QRgb colour) const;
    /// A frame inside of its area.
    void Frame(const QRect& dots, int thickness, QRgb colour) const;
    /// A line that is full or interrupted, along the longer side of its area.
    void Mark(const QRect& dots, QRgb colour, bool interrupted) const;
    /// A card with round corners and a thin line around it, inside of its area.
    void Card(const QRectF& area, double radius, QRgb line, QRgb fill) const;

private:
    [[nodiscard]] QRectF Area_Of(const QRectF& dots) const;

    QPainter& painter_;
    QTransform to_dots_;
    QTransform from_dots_;
};

} // namespace kestrum::desktop
