// How the keys lead through a page.

#include "desktop/frame_view.h"
#include "desktop/page.h"

#include <QLineEdit>

#include <algorithm>
#include <tuple>

namespace kestrum::desktop {

namespace {

bool Can_Be_Typed_Into(const QWidget& widget) {
    const auto* const edit = dynamic_cast<const QLineEdit*>(&widget);
    return edit != nullptr && edit->isVisible() && edit->isEnabled() && !edit->isReadOnly();
}

bool Overlap(int first, int first_count, int second, int second_count) {
    return first < second + second_count && second < first + first_count;
}

} // namespace

/// Fields that stand behind a caption come column by column, as the header of a sheet is filled
/// in; those under headings row by row, as a test is run; all else as it is read, and a picture
/// last, so that no window begins with it.
std::vector<QWidget*> Page::Tab_Order() const {
    enum Group { Behind_Captions, Under_Headings, Others, Pictures };

    struct Stop {
        Group group;
        Place place;
        QWidget* widget;
    };

    std::vector<Stop> stops;
    int first_row[] = {rows_, rows_, rows_, rows_}; // NOLINT(*-avoid-c-arrays)
    for (const Item& item : items_) {
        QWidget* const widget = item.view->Widget();
        Group group = Others;
        if (dynamic_cast<const QLineEdit*>(widget) != nullptr &&
            Own_Words_Of(item.view->control) == nullptr) {
            group = map_.Is_Under_Heading(item.view->control) ? Under_Headings : Behind_Captions;
        }
        if (item.view->control.Entry().kind == Control_Kind::Picture) {
            group = Pictures;
        }
        first_row[group] = std::min(first_row[group], item.place.row);
        stops.push_back({group, item.place, widget});
    }
    first_row[Others] = rows_;
    first_row[Pictures] = rows_ + 1;
    std::ranges::stable_sort(stops, {}, [&first_row](const Stop& stop) {
        const bool by_columns = stop.group == Behind_Captions;
        return std::tuple(first_row[stop.group], by_columns ? stop.place.column : stop.place.row,
                          by_columns ? stop.place.row : stop.place.column);
    });
    std::vector<QWidget*> order;
    for (const Stop& stop : stops) {
        if (const auto* const frame = dynamic_cast<const Frame_View*>(stop.widget)) {
            const std::vector<QWidget*> inner = frame->Tab_Order();
            order.insert(order.end(), inner.begin(), inner.end());
        } else if (stop.widget->focusPolicy() != Qt::NoFocus) {
            order.push_back(stop.widget);
        }
    }
    return order;
}

QWidget* Page::Neighbour_Of(const Control_View& view, Direction direction) const {
    const Place from = Place_Of(view.control);
    const bool vertical = direction == Direction::Up || direction == Direction::Down;
    const int sign = direction == Direction::Up || direction == Direction::Left ? -1 : 1;
    QWidget* nearest = nullptr;
    int least = 0;
    for (const Item& item : items_) {
        const Place& to = item.place;
        const int distance = sign * (vertical ? to.row - from.row : to.column - from.column);
        const bool in_line = vertical ? Overlap(from.column, from.columns, to.column, to.columns)
                                      : from.row == to.row;
        if (distance > 0 && in_line && Can_Be_Typed_Into(*item.view->Widget()) &&
            (nearest == nullptr || distance < least)) {
            nearest = item.view->Widget();
            least = distance;
        }
    }
    return nearest;
}

} // namespace kestrum::desktop
