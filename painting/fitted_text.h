#pragma once

#include "platform/drawing.h"

#include <QFont>
#include <QRectF>
#include <QString>

namespace kestrum::painting {

/// A text of a drawing as it is set in the font that is there: squeezed, or widened and spaced, to
/// the width that it is given, so that no layout depends on the font.
struct Fitted_Text {
    QString text;
    QFont font;
    int colour = 0;
    double left = 0; // units of the drawing, as the others
    double baseline = 0;
    double width = 0;
    double scale = 1;   // of the font to its height here
    double stretch = 1; // of its width beyond that
    double spacing = 0; // between two letters, before the stretch
    double halo = 0;    // width of the white around its letters

    /// What its letters cover at most.
    [[nodiscard]] QRectF Box() const;
};

/// The text of a step at a place and in a width; letters that would become too narrow are set
/// smaller.
[[nodiscard]] Fitted_Text Fitted(const Draw_Operation& operation, double left, double width);

} // namespace kestrum::painting
