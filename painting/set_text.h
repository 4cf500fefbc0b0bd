#pragma once

#include "drawing/drawing.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace kestrum::painting {

/// How the letters of one kind of surface are made.
struct Letters {
    QStringList families;
    double dots = 1;  // of the font, which has whole ones only, for one of a text's size
    double units = 1; // of the drawing for a dot of the font
    double line_height = 1;
    double smallest = 5;      // size
    double least_squeeze = 1; // how far they are squeezed before they are set smaller
};

/// A text as its letters are set: in their natural width at the anchor, smaller where the room asks
/// for it. Places are in units of the drawing.
struct Set_Text {
    QString text;
    QFont font;
    QColor colour;
    Text_Anchor anchor = Text_Anchor::Left;
    double left = 0;
    double baseline = 0;
    double width = 0;
    double scale = 1;   // units for a dot of the font
    double squeeze = 1; // of the letters' width, where even the smallest ones are too wide
    double halo = 0;    // width of the white around the letters

    /// What its letters cover at most.
    [[nodiscard]] QRectF Box() const;

    /// Height of the font.
    [[nodiscard]] double Height() const { return font.pixelSize() * scale; }

    /// The outlines of its letters.
    [[nodiscard]] QPainterPath Outlines() const;
};

/// Sets the text of a step from its cell on, in so much room.
[[nodiscard]] Set_Text Set_In_Room(const Draw_Operation& step, double room, const Letters& letters);

/// Gives a painter the font and the units of the font's dots, from the first letter's foot on.
void Set_Up_Letters(const Set_Text& set, QPainter& painter);

/// Paints the letters, not the halo.
void Paint_Set_Text(const Set_Text& set, QPainter& painter);

} // namespace kestrum::painting
