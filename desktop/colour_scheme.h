#pragma once

#include "screens/control_entry.h"

#include <QPalette>
#include <QRgb>

namespace kestrum::desktop {

/// Colours that tell which valve something belongs to.
struct Side_Colours {
    QRgb result_back;
    QRgb result_text;
    QRgb caption;
    /// Line at the foot of an input, stripe beside a result.
    QRgb mark;
};

/// All colours of the windows.
struct Colour_Scheme {
    QRgb window;
    QRgb card;
    QRgb card_line;
    QRgb line;
    QRgb ink;
    QRgb quiet_ink;
    QRgb faint_ink;
    QRgb accent;
    QRgb accent_hover;
    /// Letters and signs that stand on the accent.
    QRgb on_accent;
    QRgb accent_soft;
    /// Lies over the cells of a block; the letters below stay readable.
    QRgb block_veil;
    QRgb marker;
    QRgb information;
    QRgb warning;
    QRgb failure;
    Side_Colours neutral;
    Side_Colours intake;
    Side_Colours exhaust;

    [[nodiscard]] const Side_Colours& Of(Side side) const;
};

/// The scheme that goes with the desktop's own colours: light or dark, or those colours themselves
/// where they are pure black and white, as somebody chooses who needs the contrast.
[[nodiscard]] Colour_Scheme Scheme_For(const QPalette& desktop);

/// A scheme as the toolkit's palette.
[[nodiscard]] QPalette Palette_Of(const Colour_Scheme& scheme);

/// How well two colours can be told apart, from 1 to 21.
[[nodiscard]] double Contrast_Of(QRgb one, QRgb other);

} // namespace kestrum::desktop
