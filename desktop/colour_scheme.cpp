#include "desktop/colour_scheme.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace kestrum::desktop {

namespace {

constexpr Colour_Scheme light{
    .window = 0xFFF1F3F6,
    .card = 0xFFFFFFFF,
    .card_line = 0xFFDDE2E8,
    .line = 0xFFC3CBD5,
    .ink = 0xFF1C2530,
    .quiet_ink = 0xFF515D6B,
    .faint_ink = 0xFF636E7B,
    .accent = 0xFF17696A,
    .accent_hover = 0xFF1E7B7C,
    .on_accent = 0xFFFFFFFF,
    .accent_soft = 0xFFD7EAEA,
    .block_veil = 0x3817696A,
    .marker = 0xFF2E9E4F,
    .information = 0xFF5B8DEF,
    .warning = 0xFFB06A0C,
    .failure = 0xFFB3352F,
    .neutral = {0xFFEDF3F1, 0xFF0E4F4A, 0xFF35414E, 0xFF2E9E4F},
    .intake = {0xFFEAF2FB, 0xFF15498A, 0xFF1D4F8C, 0xFF4A86CC},
    .exhaust = {0xFFFBF1E7, 0xFF8A3F0B, 0xFF8F4716, 0xFFCC7A35},
};

constexpr Colour_Scheme dark{
    .window = 0xFF1B2026,
    .card = 0xFF242A31,
    .card_line = 0xFF39424C,
    .line = 0xFF66727F,
    .ink = 0xFFE8EDF2,
    .quiet_ink = 0xFFB8C2CC,
    .faint_ink = 0xFF96A1AD,
    .accent = 0xFF55BDB9,
    .accent_hover = 0xFF74D0CC,
    .on_accent = 0xFF10181A,
    .accent_soft = 0xFF1F4749,
    .block_veil = 0x3855BDB9,
    .marker = 0xFF4CC27A,
    .information = 0xFF83ABFF,
    .warning = 0xFFE3A548,
    .failure = 0xFFFF8F86,
    .neutral = {0xFF26362F, 0xFFA6E3CF, 0xFFCFD7DF, 0xFF4CC27A},
    .intake = {0xFF1F3047, 0xFFAFD3FF, 0xFF95C4FF, 0xFF5E9DE8},
    .exhaust = {0xFF41301F, 0xFFFFCB9E, 0xFFF2B27E, 0xFFDB8E4B},
};

/// Part of full light that a colour gives off, as an eye takes it.
double Luminance(QRgb colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

/// The desktop's own colours, and hues for the valves that stand out from them.
Colour_Scheme Scheme_Of_Contrast(const QPalette& desktop, bool is_dark) {
    const auto of = [&desktop](QPalette::ColorRole role) { return desktop.color(role).rgb(); };
    Colour_Scheme scheme = is_dark ? dark : light;
    const QRgb ink = of(QPalette::WindowText);
    const QRgb back = of(QPalette::Window);
    scheme.window = scheme.card = back;
    scheme.card_line = scheme.line = scheme.ink = scheme.quiet_ink = ink;
    const QRgb disabled = desktop.color(QPalette::Disabled, QPalette::WindowText).rgb();
    constexpr double readable = 4.5;
    scheme.faint_ink = Contrast_Of(disabled, back) >= readable ? disabled : ink;
    scheme.accent = scheme.accent_hover = of(QPalette::Highlight);
    scheme.on_accent = of(QPalette::HighlightedText);
    if (Contrast_Of(scheme.accent, back) < readable ||
        Contrast_Of(scheme.accent, scheme.on_accent) < readable) {
        scheme.accent = scheme.accent_hover = ink;
        scheme.on_accent = back;
    }
    scheme.accent_soft = is_dark ? 0xFF333333 : 0xFFDDDDDD;
    for (Side_Colours* const side : {&scheme.neutral, &scheme.intake, &scheme.exhaust}) {
        side->result_back = back;
    }
    scheme.neutral.caption = scheme.neutral.result_text = ink;
    return scheme;
}

} // namespace

const Side_Colours& Colour_Scheme::Of(Side side) const {
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

double Contrast_Of(QRgb one, QRgb other) {
    constexpr double glare = 0.05; // of the room
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + glare) / (darker + glare);
}

Colour_Scheme Scheme_For(const QPalette& desktop) {
    constexpr double pure = 20.5; // black on white; the grey of a usual window stays below
    const QRgb back = desktop.color(QPalette::Window).rgb();
    const QRgb ink = desktop.color(QPalette::WindowText).rgb();
    const bool is_dark = Luminance(back) < Luminance(ink);
    if (Contrast_Of(back, ink) >= pure) {
        return Scheme_Of_Contrast(desktop, is_dark);
    }
    return is_dark ? dark : light;
}

QPalette Palette_Of(const Colour_Scheme& scheme) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, QRgb colour, QRgb when_disabled) {
        palette.setColor(role, QColor::fromRgb(colour));
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(when_disabled));
    };
    set(QPalette::Window, scheme.window, scheme.window);
    set(QPalette::WindowText, scheme.ink, scheme.faint_ink);
    set(QPalette::Base, scheme.card, scheme.card);
    set(QPalette::AlternateBase, scheme.window, scheme.window);
    set(QPalette::Text, scheme.ink, scheme.faint_ink);
    set(QPalette::PlaceholderText, scheme.faint_ink, scheme.faint_ink);
    set(QPalette::Button, scheme.card, scheme.window);
    set(QPalette::ButtonText, scheme.ink, scheme.faint_ink);
    set(QPalette::BrightText, scheme.failure, scheme.faint_ink);
    set(QPalette::Highlight, scheme.accent, scheme.faint_ink);
    set(QPalette::HighlightedText, scheme.on_accent, scheme.card);
    set(QPalette::Link, scheme.accent, scheme.faint_ink);
    set(QPalette::LinkVisited, scheme.accent, scheme.faint_ink);
    set(QPalette::ToolTipBase, scheme.accent_soft, scheme.accent_soft);
    set(QPalette::ToolTipText, scheme.ink, scheme.faint_ink);
    set(QPalette::Light, scheme.card, scheme.card);
    set(QPalette::Midlight, scheme.card_line, scheme.card_line);
    set(QPalette::Mid, scheme.line, scheme.line);
    set(QPalette::Dark, scheme.line, scheme.line);
    set(QPalette::Shadow, scheme.line, scheme.line);
    return palette;
}

} // namespace kestrum::desktop
