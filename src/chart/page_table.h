#pragma once

#include "chart/chart_table.h"
#include "chart/curve_look.h"
#include "drawing/figure.h"

#include <vector>

namespace kestrum {

/// A table on a page: a head, a rule, and lines of numbers that hold to the right. Its letters are
/// as large as its columns allow.
class Page_Table {
public:
    Page_Table(Chart_Table table, const Figure_Box& page);

    /// A tight one has less room between its lines.
    [[nodiscard]] double Height(bool is_tight) const;
    /// Draws it from a height down.
    void Draw(Figure& figure, double top, const Chart_Colours& colours, bool is_tight) const;

private:
    struct Place {
        double left = 0; // behind the column before
        double right = 0;
    };

    /// Of the widest text and of the title, in letters of size 1.
    struct Width {
        double text = 0;
        double title = 0;
    };

    [[nodiscard]] Width Widest(std::size_t column) const;
    [[nodiscard]] double Text_Width(std::size_t column, double size) const;
    [[nodiscard]] double Gap(std::size_t column, double size) const;
    void Place_Columns();
    [[nodiscard]] bool Has_Titles() const;
    [[nodiscard]] bool Has_Groups() const;
    [[nodiscard]] double Head_Height(double line_height) const;
    void Draw_Head(Figure& figure, double line, const Chart_Colours& colours) const;
    void Draw_Groups(Figure& figure, double line, const Chart_Colours& colours) const;

    Chart_Table table_;
    Figure_Box page_;
    double text_size_;
    std::vector<Width> widths_;
    std::vector<Place> places_;
};

} // namespace kestrum
