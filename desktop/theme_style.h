#pragma once

#include "desktop/colour_scheme.h"

#include <QIcon>
#include <QProxyStyle>

namespace kestrum::desktop {

/// Qt's own style with the boxes, dots, frames and bars of our theme.
class Theme_Style : public QProxyStyle {
public:
    Theme_Style();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;

    [[nodiscard]] const Colour_Scheme& Scheme() const { return scheme_; }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* details) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                     const QWidget* widget) const override;

private:
    Colour_Scheme scheme_;
};

/// Gives the application its style, colours and letters.
void Apply_Theme();

} // namespace kestrum::desktop
