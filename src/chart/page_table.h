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

    /// With less room between its lines.
    void Tighten();

    [[nodiscard]] double Height() const;
    /// Draws it from a height down.
    void Draw(Figure& figure, double top, const Chart_Colours& colours) const;

private:
    struct Place {
        double left = 0; // behind the column before
        double right = 0;
    };

    [[nodiscard]] double Text_Width(std::size_t column, double size) const;
    [[nodiscard]] double Gap(std::size_t column, double size) const;
    void Place_Columns();
    [[nodiscard]] bool Has_Titles() const;
    [[nodiscard]] bool Has_Groups() const;
    [[nodiscard]] double Head_Height() const;
    void Draw_Head(Figure& figure, double line, const Chart_Colours& colours) const;
    void Draw_Groups(Figure& figure, double line, const Chart_Colours& colours) const;

    Chart_Table table_;
    Figure_Box page_;
    double text_size_;
    double line_height_;
    double title_height_ = 15;
    double space_below_ = 10;
    std::vector<Place> places_;
};

} // namespace kestrum
