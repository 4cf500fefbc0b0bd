#include "painting/fitted_text.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>

namespace kestrum::painting {

namespace {

/// Height of the letters to the size of a text. At these the letters of the usual font are about as
/// wide as the measure, and the two captions, whose rows overlap, are clear of each other.
double Letter_Height(double size) {
    constexpr double largest_small = 18;
    return size < largest_small ? 0.84 : 0.8;
}

/// Narrow letters are widened no further than this; the rest goes between them.
constexpr double most_stretch = 1.08;
/// Letters are squeezed no further than this; from there on they become smaller.
constexpr double least_stretch = 0.65;

QFont Text_Font() {
    QFont font;
    font.setFamilies(QStringList{QStringLiteral("DejaVu Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    // Hinted letters would have another width at each size.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A file may bring a name of megabytes; what is behind this could not be read anyway.
QString Without_Endless_End(const QString& text) {
    constexpr qsizetype most_letters = 200;
    return text.size() <= most_letters ? text : text.left(most_letters) + QChar(0x2026);
}

/// Fonts have whole sizes, so one of this size is scaled.
constexpr int design_size = 100;

} // namespace

QRectF Fitted_Text::Box() const {
    constexpr double above = 0.75; // of the font's height, to the top of the highest letters
    constexpr double below = 0.23;
    const double height = font.pixelSize() * scale;
    return {left, baseline - above * height, width, (above + below) * height};
}

Fitted_Text Fitted(const Draw_Operation& operation, double left, double width) {
    constexpr double halo_to_height = 0.25;
    Fitted_Text fitted;
    fitted.text = Without_Endless_End(QString::fromStdString(operation.text));
    fitted.font = Text_Font();
    fitted.font.setPixelSize(design_size);
    fitted.colour = operation.colour;
    const QFontMetricsF metrics(fitted.font);
    fitted.scale = operation.size * Letter_Height(operation.size) / design_size;
    fitted.left = left;
    fitted.width = width;
    double natural = metrics.horizontalAdvance(fitted.text) * fitted.scale;
    if (natural > 0) {
        const double shrink = std::min(width / natural / least_stretch, 1.0);
        fitted.scale *= shrink;
        natural *= shrink;
        fitted.stretch = std::min(width / natural, most_stretch);
        const double wanted = width / fitted.stretch;
        constexpr double percent = 100; // a spacing in dots would depend on the device
        fitted.font.setLetterSpacing(QFont::PercentageSpacing, percent * wanted / natural);
        fitted.spacing = (wanted - natural) / static_cast<double>(fitted.text.size());
    }
    const double height = (metrics.ascent() + metrics.descent()) * fitted.scale;
    fitted.baseline = operation.y1 + (Canvas_Text_Height(operation.size) - height) / 2 +
                      metrics.ascent() * fitted.scale;
    fitted.halo = design_size * fitted.scale * halo_to_height;
    return fitted;
}

} // namespace kestrum::painting
