#include "screens/geometry.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double column_width = 1200;
constexpr double row_height = 285;
constexpr double canvas_size = 600;

/// "Text104": the fourth column; -1 for a name that tells none.
int Column_In_Name(std::string_view array) {
    constexpr std::size_t length = 7;
    if (array.size() != length || (array[4] != '1' && array[4] != '2')) {
        return -1;
    }
    return (array[5] - '0') * 10 + (array[6] - '0') - 1;
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
    if (control.Entry().kind == Control_Kind::Picture) {
        return {.left = control.Moved_To().left,
                .top = control.Moved_To().top,
                .width = canvas_size,
                .height = canvas_size};
    }
    const Place place = Place_Of(control);
    if (place.column < 0) {
        return {};
    }
    return {.left = place.column * column_width,
            .top = place.row * row_height,
            .width = place.columns * column_width,
            .height = place.rows * row_height};
}

Twips Place_In_Twips(const Screen& screen) {
    Twips size{.left = 0, .top = 0, .width = 0, .height = 0};
    for (const Control& control : screen.Controls()) {
        const Twips place = Place_In_Twips(control);
        size.width = std::max(size.width, place.left + place.width);
        size.height = std::max(size.height, place.top + place.height);
    }
    return size;
}

} // namespace kestrum
