#include "desktop/theme_style.h"

#include "desktop/control_view.h"
#include "desktop/crisp.h"
#include "desktop/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <QStyleOption>

#include <algorithm>

namespace kestrum::desktop {

namespace {

/// Of a check box or an option: it grows with the letters beside it, and stays in its widget.
int Indicator_Size(const QWidget* widget) {
    constexpr int smallest = 8;
    const int of_letters = widget == nullptr ? -1 : widget->font().pixelSize();
    if (of_letters <= 0) {
        return theme::text_pixels + 2;
    }
    return std::max(smallest, std::min(of_letters + 2, widget->height()));
}

struct Indicator {
    QRectF area;
    bool on;
    bool enabled;
    bool marked; // has the focus or the mouse over it
};

Indicator Indicator_Of(const QStyleOption& option) {
    return {.area = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5),
            .on = option.state.testFlag(QStyle::State_On),
            .enabled = option.state.testFlag(QStyle::State_Enabled),
            .marked = option.state.testFlag(QStyle::State_HasFocus) ||
                      option.state.testFlag(QStyle::State_MouseOver)};
}

void Set_Colours(QPainter& painter, const Indicator& indicator) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRgb fill = !indicator.enabled ? theme::Colours().window
                      : indicator.on     ? theme::Colours().accent
                                         : theme::Colours().card;
    const bool strong = indicator.enabled && (indicator.on || indicator.marked);
    painter.setBrush(QColor::fromRgb(fill));
    painter.setPen(QColor::fromRgb(strong ? theme::Colours().accent : theme::Colours().line));
}

QColor Mark_Colour(const Indicator& indicator) {
    return QColor::fromRgb(indicator.enabled ? theme::Colours().on_accent
                                             : theme::Colours().faint_ink);
}

void Paint_Check_Box(QPainter& painter, const Indicator& indicator) {
    Set_Colours(painter, indicator);
    constexpr double corner = 3;
    painter.drawRoundedRect(indicator.area, corner, corner);
    if (indicator.on) {
        const QRectF& area = indicator.area;
        const auto at = [&area](double right, double down) {
            return QPointF(area.left() + right * area.width(), area.top() + down * area.height());
        };
        painter.setPen(
            QPen(Mark_Colour(indicator), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.24, 0.54), at(0.43, 0.72), at(0.77, 0.31)});
    }
}

void Paint_Option(QPainter& painter, const Indicator& indicator) {
    Set_Colours(painter, indicator);
    painter.drawEllipse(indicator.area);
    if (indicator.on) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Mark_Colour(indicator));
        const double inset = indicator.area.width() * 0.3;
        painter.drawEllipse(indicator.area.adjusted(inset, inset, -inset, -inset));
    }
}

/// A tip that points down, or as far from there as it is turned.
void Paint_Tip(QPainter& painter, const QRectF& area, double degrees, bool enabled) {
    constexpr double half = 4;
    constexpr double thickness = 1.6;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.rotate(degrees);
    const QRgb ink = enabled ? theme::Colours().quiet_ink : theme::Colours().faint_ink;
    painter.setPen(
        QPen(QColor::fromRgb(ink), thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF{QPointF(-half, -half / 2), QPointF(0, half / 2), QPointF(half, -half / 2)});
    painter.restore();
}

/// Qt's own frames are darker than their window, so on a dark one they cannot be seen.
void Paint_Combo_Box(QPainter& painter, const QStyleOption& option, const QRect& arrow) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    Crisp(painter).Card(option.rect, theme::radius - 1,
                        focused ? theme::Colours().accent : theme::Colours().line,
                        enabled ? theme::Colours().card : theme::Colours().window);
    Paint_Tip(painter, arrow, 0, enabled);
}

void Paint_Frame(QPainter& painter, const QStyleOption& option) {
    const Crisp crisp(painter);
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    crisp.Frame(crisp.Dots_Of(option.rect), crisp.Dots_In(1),
                focused ? theme::Colours().accent : theme::Colours().line);
}

/// A button of a dialog.
void Paint_Button(QPainter& painter, const QStyleOption& option) {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const bool is_default =
        button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool strong = is_default || option.state.testFlag(QStyle::State_HasFocus);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const Colour_Scheme& colours = theme::Colours();
    Crisp(painter).Card(option.rect, theme::radius, strong ? colours.accent : colours.line,
                        option.state.testFlag(QStyle::State_Sunken) ? colours.accent_soft
                        : enabled                                   ? colours.card
                                                                    : colours.window);
}

/// Where the parts of a scroll bar lie.
struct Scroll_Bar {
    QRect back;
    QRect forth;
    QRect slider;
};

void Paint_Scroll_Bar(QPainter& painter, const QStyleOption& option, const Scroll_Bar& bar) {
    constexpr double margin = 3;
    const bool lies = option.state.testFlag(QStyle::State_Horizontal);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    painter.fillRect(option.rect, QColor::fromRgb(theme::Colours().window));
    Paint_Tip(painter, bar.back, lies ? 90 : 180, enabled);
    Paint_Tip(painter, bar.forth, lies ? -90 : 0, enabled);
    if (enabled) {
        const QRgb colour = theme::Colours().faint_ink;
        const QRectF across = QRectF(bar.slider).adjusted(0, margin, 0, -margin);
        const QRectF down = QRectF(bar.slider).adjusted(margin, 0, -margin, 0);
        Crisp(painter).Card(lies ? across : down, margin, colour, colour);
    }
}

/// The sign of a message box: a letter on a disc.
QIcon Sign(QRgb colour, QChar letter) {
    QIcon icon;
    for (const int size : {32, 64, 96}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgb(colour));
        painter.drawEllipse(picture.rect().adjusted(1, 1, -1, -1));
        QFont bold = theme::Text_Font();
        bold.setBold(true);
        bold.setPixelSize(size * 5 / 8);
        painter.setFont(bold);
        painter.setPen(QColor::fromRgb(theme::Colours().on_accent));
        painter.drawText(picture.rect(), Qt::AlignCenter, letter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

Theme_Style::Theme_Style()
    : QProxyStyle(QStringLiteral("Fusion")), scheme_(Scheme_For(QPalette())) {}

/// Comes with the desktop's colours, at the start and whenever they change.
void Theme_Style::polish(QPalette& palette) {
    scheme_ = Scheme_For(palette);
    palette = Palette_Of(scheme_);
}

void Theme_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelLineEdit && dynamic_cast<const Control_View*>(widget) != nullptr) {
        return; // a cell paints its own back
    }
    painter->save();
    switch (element) {
    case PE_PanelMenu:
        painter->fillRect(option->rect, QColor::fromRgb(theme::Colours().card));
        [[fallthrough]];
    case PE_Frame:
    case PE_FrameLineEdit:
        Paint_Frame(*painter, *option);
        break;
    case PE_PanelButtonCommand:
        Paint_Button(*painter, *option);
        break;
    case PE_IndicatorCheckBox:
        Paint_Check_Box(*painter, Indicator_Of(*option));
        break;
    case PE_IndicatorRadioButton:
        Paint_Option(*painter, Indicator_Of(*option));
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    }
    painter->restore();
}

void Theme_Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto part = [&](SubControl which) {
        return subControlRect(control, option, which, widget);
    };
    if (control == CC_ComboBox) {
        Paint_Combo_Box(*painter, *option, part(SC_ComboBoxArrow));
    } else if (control == CC_ScrollBar) {
        Paint_Scroll_Bar(*painter, *option,
                         {.back = part(SC_ScrollBarSubLine),
                          .forth = part(SC_ScrollBarAddLine),
                          .slider = part(SC_ScrollBarSlider)});
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

int Theme_Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return Indicator_Size(widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Theme_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* details) const {
    switch (hint) {
    case SH_EtchDisabledText:                 // embossed letters read badly
    case SH_DialogButtonBox_ButtonsHaveIcons: // our other buttons have none
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, details);
    }
}

QIcon Theme_Style::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (picture) {
    case SP_MessageBoxInformation:
        return Sign(theme::Colours().accent, QLatin1Char('i'));
    case SP_MessageBoxQuestion:
        return Sign(theme::Colours().accent, QLatin1Char('?'));
    case SP_MessageBoxWarning:
        return Sign(theme::Colours().warning, QLatin1Char('!'));
    case SP_MessageBoxCritical:
        return Sign(theme::Colours().failure, QLatin1Char('!'));
    default:
        return QProxyStyle::standardIcon(picture, option, widget);
    }
}

void Apply_Theme() {
    QApplication::setStyle(new Theme_Style);
    // The desktop may name letters that are not there; what stands in must be none with serifs.
    QFont letters = theme::Text_Font();
    letters.setFamilies(
        {letters.family(), QStringLiteral("Segoe UI"), QStringLiteral("DejaVu Sans")});
    letters.setStyleHint(QFont::SansSerif);
    QApplication::setFont(letters);
}

} // namespace kestrum::desktop
