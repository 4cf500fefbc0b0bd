#pragma once

#include "screens/control.h"

#include <QColor>
#include <QFont>
#include <QPalette>

/// The one place for colours, fonts and spacing of all windows.
namespace kestrum::desktop::theme {

inline constexpr QRgb window = 0xFFF1F3F6;
inline constexpr QRgb card = 0xFFFFFFFF;
inline constexpr QRgb card_line = 0xFFDDE2E8;
inline constexpr QRgb line = 0xFFC3CBD5;
inline constexpr QRgb ink = 0xFF1C2530;
inline constexpr QRgb quiet_ink = 0xFF515D6B;
inline constexpr QRgb faint_ink = 0xFF97A1AD;
inline constexpr QRgb accent = 0xFF17696A;
inline constexpr QRgb accent_hover = 0xFF1E7F80;
inline constexpr QRgb accent_soft = 0xFFD7EAEA;
/// Lies over the cells of a block; the letters below stay as dark as they are.
inline constexpr QRgb block_veil = 0x3817696A;
inline constexpr QRgb marker = 0xFF2E9E4F;
inline constexpr QRgb information = 0xFF5B8DEF;
inline constexpr QRgb warning = 0xFFC77A16;
inline constexpr QRgb failure = 0xFFB3352F;

/// What a cell is painted with.
struct Cell_Colours {
    QRgb back = card;
    QRgb text = ink;
    QRgb line = theme::line;
    /// Line at the foot of an input.
    QRgb foot = marker;
};

/// The theme's colours for the look that the session has given a field. Intake and exhaust have a
/// hue of their own.
[[nodiscard]] Cell_Colours Colours_Of(const Control& field);
/// Colour of a heading or caption of a side.
[[nodiscard]] QRgb Caption_Ink(Side side);
/// Colour of a marker label; nothing shows for a marker that the session has put out.
[[nodiscard]] QColor Marker_Colour(const Control& marker_label);

[[nodiscard]] QPalette Palette();

inline constexpr int text_pixels = 12;
inline constexpr int smallest_pixels = 9;
inline constexpr int page_margin = 8;
inline constexpr int card_padding = 5;
inline constexpr int text_padding = 4;
inline constexpr int help_lines = 3;
inline constexpr int radius = 4;

[[nodiscard]] QFont Text_Font(double scale = 1);
/// The font that the user has chosen for a field, or the theme's.
[[nodiscard]] QFont Font_Of(const Control& field, const QFont& usual);

} // namespace kestrum::desktop::theme
