#pragma once

#include <QIcon>
#include <QProxyStyle>

namespace kestrum::desktop {

/// Qt's own style with the boxes, dots and menus of our theme.
class Theme_Style : public QProxyStyle {
public:
    Theme_Style();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* details) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

/// Gives the application its style, colours and letters.
void Apply_Theme();

} // namespace kestrum::desktop
