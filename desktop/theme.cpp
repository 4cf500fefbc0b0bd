#include "desktop/theme.h"

#include "desktop/text_bridge.h"
#include "desktop/theme_style.h"
#include "screens/screen.h"

#include <QApplication>

#include <algorithm>
#include <cmath>

namespace kestrum::desktop::theme {

const Colour_Scheme& Colours() {
    if (const auto* const style = dynamic_cast<const Theme_Style*>(QApplication::style())) {
        return style->Scheme();
    }
    static const Colour_Scheme usual = Scheme_For(QPalette()); // a window without the theme
    return usual;
}

namespace {

bool Looks_Like_A_Result(const Look& look) {
    return look.back_colour == result_back || look.text_colour == result_text;
}

} // namespace

bool Is_Old(const Control& field) {
    return field.Is_Text_Box() && field.Entry().use != Cell_Use::Caption &&
           Looks_Like_A_Result(field.Present_Look()) &&
           (field.Is_Left() || field.Owner().Results_Are_Old());
}

Cell_Colours Colours_Of(const Control& field) {
    const Look& look = field.Present_Look();
    const Side_Colours& side = Colours().Of(look.side);
    Cell_Colours colours{.back = Colours().card,
                         .text = Colours().ink,
                         .line = Colours().line,
                         .foot = side.mark,
                         .stripe = 0,
                         .dashed = look.side == Side::Exhaust};
    if (Looks_Like_A_Result(look)) {
        colours.back = side.result_back;
        colours.text = side.result_text;
        colours.line = colours.back;
        colours.foot = colours.back;
        colours.stripe = look.side == Side::Both ? 0 : side.mark;
        if (Is_Old(field)) {
            colours.back = colours.line = colours.foot = Colours().window;
            colours.text = Colours().quiet_ink;
        }
    } else if (look.locked) {
        colours.foot = colours.line;
        colours.dashed = false;
    }
    return colours;
}

QRgb Caption_Ink(Side side) {
    return Colours().Of(side).caption;
}

QColor Marker_Colour(const Control& marker_label) {
    constexpr Colour put_out = 0xFFFFFF;
    return marker_label.Present_Look().back_colour == put_out ? QColor(Qt::transparent)
                                                              : QColor::fromRgb(Colours().marker);
}

QFont Text_Font(double scale) {
    QFont font = QApplication::font();
    font.setPixelSize(
        std::max(smallest_pixels, static_cast<int>(std::lround(text_pixels * scale))));
    return font;
}

Font Chosen_Font(const Control& field) {
    constexpr double nearly = 1e-6; // of what multiplying and dividing leaves
    Font font = field.Present_Look().font;
    font.size /= field.Owner().scale.font;
    if (std::abs(font.size - Font().size) < nearly) {
        font.size = Font().size;
    }
    return font;
}

QFont Font_Of(const Control& field, const QFont& usual) {
    const Font chosen = Chosen_Font(field);
    const Font stored;
    QFont font = usual;
    if (chosen == stored) {
        font.setItalic(Is_Old(field));
        return font;
    }
    font.setFamily(To_Qt(chosen.name));
    font.setPixelSize(
        std::max(smallest_pixels, static_cast<int>(usual.pixelSize() * chosen.size / stored.size)));
    font.setBold(chosen.bold);
    font.setItalic(chosen.italic != Is_Old(field));
    return font;
}

} // namespace kestrum::desktop::theme
