#pragma once

#include "drawing/drawing.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrum {

/// Sizes of letters and of vector pages are in points.
inline constexpr int points_in_inch = 72;

/// The part of a sheet of paper that can be printed on, in twips, 1440 to the inch.
struct Paper {
    double width = 12240;
    double height = 15840;
};

enum class Paper_Size { A4, Letter };

/// A whole sheet, and what ordinary margins leave of it.
[[nodiscard]] Paper Whole_Sheet(Paper_Size size);
[[nodiscard]] Paper Within_Margins(Paper_Size size);

/// The margin on each side that `Within_Margins` keeps.
inline constexpr double ordinary_margin = 720;

/// A drawing in twips for each page.
using Pages = std::vector<Drawing>;

/// What is to be printed. Its pages are laid out when the paper is known.
struct Document {
    std::string title;
    std::function<Pages(const Paper&)> lay_out;
    /// Name or path of a PDF file that may be made of it; empty: none.
    std::string proposal{};
};

/// Width that every printed page takes, whatever stands on it.
inline constexpr double page_width = 12200;

/// A text of the printer is measured by these fixed rules, so that a layout comes out the same on
/// every device; paper sets its own letters at the anchors.
[[nodiscard]] double Printed_Text_Width(std::string_view text, double size);
[[nodiscard]] double Printed_Text_Height(double size);

/// Where a page on this paper ends at the latest: pages are made smaller to fit, but not so far
/// that nobody could read them.
[[nodiscard]] double Page_End(const Paper& paper);

/// The factor, 1 at most, by which a page comes out so that the whole width and all that stands on
/// it fit the paper.
[[nodiscard]] double Scale_To_Fit(const Drawing& page, const Paper& paper);

} // namespace kestrum
