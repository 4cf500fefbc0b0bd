#include "desktop/theme.h"

#include "desktop/text_bridge.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace kestrum::desktop::theme {

namespace {

struct Side_Colours {
    QRgb result_back;
    QRgb result_text;
    QRgb caption;
    QRgb foot;
};

const Side_Colours& Of(Side side) {
    static constexpr Side_Colours neutral{0xFFEDF3F1, 0xFF0E4F4A, 0xFF35414E, marker};
    static constexpr Side_Colours intake{0xFFEAF2FB, 0xFF15498A, 0xFF1D4F8C, 0xFF6FA3DF};
    static constexpr Side_Colours exhaust{0xFFFBF1E7, 0xFF8A3F0B, 0xFF8F4716, 0xFFE2A369};
    switch (side) {
    case Side::Intake:
        return intake;
    case Side::Exhaust:
        return exhaust;
    case Side::Both:
        break;
    }
    return neutral;
}

} // namespace

Cell_Colours Colours_Of(const Control& field) {
    const Look& look = field.Present_Look();
    Cell_Colours colours;
    colours.foot = Of(look.side).foot;
    if (look.back_colour == result_back || look.text_colour == result_text) {
        colours.back = Of(look.side).result_back;
        colours.text = Of(look.side).result_text;
        colours.line = colours.back;
        colours.foot = colours.back;
    } else if (look.locked) {
        colours.foot = colours.line;
    }
    return colours;
}

QRgb Caption_Ink(Side side) {
    return Of(side).caption;
}

QColor Marker_Colour(const Control& marker_label) {
    constexpr Colour put_out = 0xFFFFFF;
    return marker_label.Present_Look().back_colour == put_out ? QColor(Qt::transparent)
                                                              : QColor::fromRgb(marker);
}

QPalette Palette() {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour, QRgb when_disabled) {
        palette.setColor(role, QColor::fromRgb(colour));
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(when_disabled));
    };
    set(QPalette::Window, window, window);
    set(QPalette::WindowText, ink, faint_ink);
    set(QPalette::Base, card, card);
    set(QPalette::AlternateBase, window, window);
    set(QPalette::Text, ink, faint_ink);
    set(QPalette::PlaceholderText, faint_ink, faint_ink);
    set(QPalette::Button, card, window);
    set(QPalette::ButtonText, ink, faint_ink);
    set(QPalette::Highlight, accent, faint_ink);
    set(QPalette::HighlightedText, card, card);
    set(QPalette::Link, accent, faint_ink);
    set(QPalette::Light, card, card);
    set(QPalette::Mid, line, line);
    set(QPalette::Dark, faint_ink, faint_ink);
    return palette;
}

QFont Text_Font(double scale) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(
        std::max(smallest_pixels, static_cast<int>(std::lround(text_pixels * scale))));
    return font;
}

QFont Font_Of(const Control& field, const QFont& usual) {
    const Font& chosen = field.Present_Look().font;
    const Font stored;
    if (chosen == stored) {
        return usual;
    }
    QFont font = usual;
    font.setFamily(To_Qt(chosen.name));
    font.setPixelSize(
        std::max(smallest_pixels, static_cast<int>(usual.pixelSize() * chosen.size / stored.size)));
    font.setBold(chosen.bold);
    font.setItalic(chosen.italic);
    return font;
}

} // namespace kestrum::desktop::theme
