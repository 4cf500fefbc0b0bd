#include "screens/geometry.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double column_width = 1200;
constexpr double row_height = 285;
/// Pixels of the graph's canvas with the two captions under the plot.
constexpr double canvas_height = 664;

/// "Text104": the fourth column; -1 for a name that tells none.
int Column_In_Name(std::string_view array) {
    constexpr std::size_t length = 7;
    if (array.size() != length || (array[4] != '1' && array[4] != '2')) {
        return -1;
    }
    return (array[5] - '0') * 10 + (array[6] - '0') - 1;
}

/// Design place of a control in its cell of the grid.
Twips Cell_In_Twips(const Control& control) {
    const Place place = Place_Of(control);
    if (place.column < 0) {
        return {};
    }
    return {.left = place.column * column_width,
            .top = place.row * row_height,
            .width = place.columns * column_width,
            .height = place.rows * row_height};
}

Twips Scaled(const Twips& design, const Screen_Scale& scale) {
    return {.left = design.left * scale.x,
            .top = design.top * scale.y,
            .width = design.width * scale.x,
            .height = design.height * scale.y};
}

} // namespace

Place Place_Of(const Control& control) {
    const Control_Entry& entry = control.Entry();
    Place place = entry.place;
    if (place.column >= 0) {
        place.row += control.Index() - entry.first;
    } else if (control.Is_Text_Box() && Column_In_Name(entry.array) >= 0) {
        place = {.column = Column_In_Name(entry.array), .row = control.Index()};
    }
    return place;
}

Twips Place_In_Twips(const Control& control) {
    if (control.Entry().kind != Control_Kind::Picture) {
        return Scaled(Cell_In_Twips(control), control.Owner().scale);
    }
    return {.left = control.Moved_To().left,
            .top = control.Moved_To().top,
            .width = control.Picture_Extent().width,
            .height = control.Picture_Extent().height};
}

Twips Place_In_Twips(const Screen& screen) {
    Twips whole;
    for (const Control& control : screen.Controls()) {
        Twips cell = Cell_In_Twips(control);
        if (control.Entry().kind == Control_Kind::Picture && cell.height > 0) {
            // The rows of the canvas are those of the controls beside it; it needs more.
            cell.height = std::max(cell.height, canvas_height * twips_per_pixel);
        }
        whole.width = std::max(whole.width, cell.left + cell.width);
        whole.height = std::max(whole.height, cell.top + cell.height);
    }
    whole = Scaled(whole, screen.scale);
    whole.left = screen.place.left;
    whole.top = screen.place.top;
    return whole;
}

} // namespace kestrum
