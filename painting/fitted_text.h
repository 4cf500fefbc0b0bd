#pragma once

#include "platform/drawing.h"

#include <QFont>
#include <QString>

namespace kestrum::painting {

/// A text of a drawing as it is set in the font that is there: squeezed, or widened and spaced, to
/// the width that the drawing's fixed measure gives it, so that no layout depends on the font.
struct Fitted_Text {
    QString text;
    QFont font;
    double left = 0; // units of the drawing, as the others
    double baseline = 0;
    double width = 0;
    double scale = 1;   // of the font to its height here
    double stretch = 1; // of its width beyond that
    double spacing = 0; // between two letters, before the stretch
};

[[nodiscard]] Fitted_Text Fitted(const Draw_Operation& operation);

} // namespace kestrum::painting
