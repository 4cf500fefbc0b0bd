#pragma once

#include "core/session.h"
#include "drawing/paper.h"

#include <string_view>

namespace kestrum {

/// The tab at the right edge of a page.
inline constexpr int full_width = 99;
/// Letters of values, in points.
inline constexpr double value_size = 11;

/// A printer as a layout drives it: by its current position, its font and its measures. What comes
/// out are pages in twips.
class Print_Page {
public:
    Print_Page(Session& session, const Paper& paper);

    double x = 0;
    double y = 0;
    double size = 8.25; // of the font, in points
    bool bold = false;

    void Set_Font(double new_size, bool new_bold) {
        size = new_size;
        bold = new_bold;
    }

    /// Width of a text in the present font; it is the session's measured width from now on.
    double Measure(std::string_view text);

    /// Prints a text between two limits, of which it may pass the right one up to `limit` without
    /// meeting a neighbour, and moves to the next line. One as wide as the room between them
    /// starts at the left one in any case.
    void Print_Aligned(std::string_view text, double left, double right, Text_Anchor anchor,
                       double limit = 0);

    /// Prints a text at the current position and moves to the next line.
    void Print(std::string_view text);

    /// A line across the page so much below the current position, which moves to its end.
    void Rule(double below, double width = 1);

    /// The logo with its left and top; the position stays.
    void Paint_Logo(double left, double top);
    /// Its size in twips, both 0 when there is none to be printed.
    [[nodiscard]] double Logo_Width() const;
    [[nodiscard]] double Logo_Height() const;

    // Rows.

    /// Begins a row whose highest text has this size; one that does not fit begins a new page.
    void Start_Row(double highest);
    /// Back to the top of the row, in the font of labels or of values.
    void Print_Label_Font();
    void Print_Value_Font();
    void Return_To_Row();
    /// Prints in the middle of the columns from one to another, which it leaves out.
    void Cell(std::string_view text, int column, int behind, double limit = 0);

    void Cell(std::string_view text, int column) { Cell(text, column, column + 1); }

    void New_Page();

    [[nodiscard]] int Tab(int index) const;

    /// Fills the table of columns and limits.
    void Set_Tabs();

    [[nodiscard]] Pages Take_Pages() { return std::move(pages_); }

    [[nodiscard]] Session& Its_Session() { return session_; }

private:
    Session& session_;
    double end_;
    Pages pages_;
};

} // namespace kestrum
