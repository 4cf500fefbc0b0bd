#pragma once

#include "desktop/colour_scheme.h"
#include "screens/control.h"

#include <QColor>
#include <QFont>

/// The one place for colours, fonts and spacing of all windows.
namespace kestrum::desktop::theme {

/// The colours in force, which follow those of the desktop.
[[nodiscard]] const Colour_Scheme& Colours();

/// What a cell is painted with.
struct Cell_Colours {
    QRgb back;
    QRgb text;
    QRgb line;
    /// Line at the foot of an input.
    QRgb foot;
    /// Stripe beside a result, which tells its valve; transparent for one of no valve.
    QRgb stripe;
    /// The marks of the exhaust are dashed, so that no colour has to be told.
    bool dashed;
};

/// The theme's colours for the look that the session has given a field. Intake and exhaust have a
/// hue of their own.
[[nodiscard]] Cell_Colours Colours_Of(const Control& field);
/// Whether a result is not of what stands in the inputs now: it shows greyed and slanted.
[[nodiscard]] bool Is_Old(const Control& field);
/// Colour of a heading or caption of a side.
[[nodiscard]] QRgb Caption_Ink(Side side);
/// Colour of a marker label; nothing shows for a marker that the session has put out.
[[nodiscard]] QColor Marker_Colour(const Control& marker_label);

inline constexpr int text_pixels = 12;
inline constexpr int smallest_pixels = 9;
inline constexpr int page_margin = 8;
inline constexpr int card_padding = 5;
inline constexpr int text_padding = 4;
inline constexpr int radius = 4;

[[nodiscard]] QFont Text_Font(double scale = 1);
/// The font that the user has chosen for a field, as it was before the screen was stretched.
[[nodiscard]] Font Chosen_Font(const Control& field);
/// The font that the user has chosen for a field, or the theme's; beside `usual` letters.
[[nodiscard]] QFont Font_Of(const Control& field, const QFont& usual);

} // namespace kestrum::desktop::theme
