#include "painting/fitted_text.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>

namespace kestrum::painting {

namespace {

/// Height of the letters to the size of a text. At this one the letters of the usual font are about
/// as wide as the measure, and the two captions, whose rows overlap, are clear of each other.
constexpr double letter_height = 0.8;

/// Narrow letters are widened no further than this; the rest goes between them.
constexpr double most_stretch = 1.12;

QFont Text_Font() {
    QFont font;
    font.setFamilies(QStringList{QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    // Hinted letters would have another width at each size.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Fonts have whole sizes, so one of this size is scaled.
constexpr int design_size = 100;

} // namespace

Fitted_Text Fitted(const Draw_Operation& operation) {
    Fitted_Text fitted;
    fitted.text = QString::fromStdString(operation.text);
    fitted.font = Text_Font();
    fitted.font.setPixelSize(design_size);
    const QFontMetricsF metrics(fitted.font);
    fitted.scale = operation.size * letter_height / design_size;
    fitted.left = operation.x1;
    fitted.width = Canvas_Text_Width(operation.text, operation.size);
    const double natural = metrics.horizontalAdvance(fitted.text) * fitted.scale;
    if (natural > 0) {
        fitted.stretch = std::min(fitted.width / natural, most_stretch);
        const double wanted = fitted.width / fitted.stretch;
        constexpr double percent = 100; // a spacing in dots would depend on the device
        fitted.font.setLetterSpacing(QFont::PercentageSpacing, percent * wanted / natural);
        fitted.spacing = (wanted - natural) / static_cast<double>(fitted.text.size());
    }
    const double height = (metrics.ascent() + metrics.descent()) * fitted.scale;
    fitted.baseline = operation.y1 + (Canvas_Text_Height(operation.size) - height) / 2 +
                      metrics.ascent() * fitted.scale;
    return fitted;
}

} // namespace kestrum::painting
