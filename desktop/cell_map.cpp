#include "desktop/cell_map.h"

#include "desktop/form_design.h"
#include "desktop/text_bridge.h"
#include "screens/geometry.h"

#include <QStringList>

#include <algorithm>

namespace kestrum::desktop {

namespace {

/// Whether words name a side by a word of their own; "In/Ex" names none.
bool Names_Side(const QString& words, Side side) {
    static const QStringList intake{QStringLiteral("In"), QStringLiteral("Int"),
                                    QStringLiteral("Intake")};
    static const QStringList exhaust{QStringLiteral("Ex"), QStringLiteral("Exh"),
                                     QStringLiteral("Exhaust")};
    const QStringList& names = side == Side::Intake ? intake : exhaust;
    for (QString word : words.split(QLatin1Char(' '))) {
        while (word.endsWith(QLatin1Char('.')) || word.endsWith(QLatin1Char(','))) {
            word.chop(1);
        }
        if (names.contains(word)) {
            return true;
        }
    }
    return false;
}

/// What tells one row of a table from the others.
QString Row_Words(int row) {
    return QLatin1String(", row ") + Digits_Of(row);
}

QString Joined(const QStringList& words) {
    return words.join(QLatin1Char(' ')).simplified();
}

QString With_Side(const QString& words, Side side) {
    if (words.isEmpty() || side == Side::Both || Names_Side(words, side)) {
        return words;
    }
    return words + (side == Side::Intake ? QLatin1String(", Intake") : QLatin1String(", Exhaust"));
}

} // namespace

Cell_Map::Cell_Map(const Screen& screen, std::string_view holder) {
    const auto belongs = [holder](const Control& control) {
        return control.Is_Text_Box() && control.Entry().parent == holder &&
               Place_Of(control).column >= 0;
    };
    for (const Control& control : screen.Controls()) {
        if (belongs(control)) {
            columns_ = std::max(columns_, Place_Of(control).column + 1);
            rows_ = std::max(rows_, Place_Of(control).row + 1);
        }
    }
    if (!holder.empty() && screen.Kind() == Screen_Kind::Sheet) {
        front_ = std::make_unique<const Cell_Map>(screen, "");
    }
    cells_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
    for (const Control& control : screen.Controls()) {
        if (belongs(control) && control.Entry().use != Cell_Use::Blank) {
            const Place place = Place_Of(control);
            cells_[Slot_Of(place.column, place.row)] = &control;
        }
    }
}

std::size_t Cell_Map::Slot_Of(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

const Control* Cell_Map::At(int column, int row) const {
    if (column < 0 || row < 0 || column >= columns_ || row >= rows_) {
        return nullptr;
    }
    return cells_[Slot_Of(column, row)];
}

bool Cell_Map::Is_Caption(int column, int row) const {
    const Control* const cell = At(column, row);
    return cell != nullptr && cell->Entry().use == Cell_Use::Caption;
}

bool Cell_Map::Is_Figure(int column, int row) const {
    return At(column, row) != nullptr && !Is_Caption(column, row);
}

QString Cell_Map::Captions_Left_Of(int column, int row) const {
    QStringList words;
    while (Is_Caption(--column, row)) {
        words.prepend(To_Qt(At(column, row)->Text()));
    }
    return Joined(words);
}

QString Cell_Map::Captions_Above(int column, int row) const {
    constexpr int most_lines = 3; // above a heading there may be a unit
    QStringList words;
    while (Is_Caption(column, --row) && words.size() < most_lines) {
        const Control& caption = *At(column, row);
        if (!caption.Text().empty() && Place_Of(caption).columns == 1) {
            words.prepend(To_Qt(caption.Text()));
        }
    }
    return Joined(words);
}

const Control* Cell_Map::Label_Over(int column, int row) const {
    while (Is_Caption(column, row - 1)) {
        --row;
    }
    // The topmost caption may be the label, or the label lies over the column from the left.
    for (const Control* const label : {At(column, row), At(column - 1, row - 1)}) {
        if (label != nullptr && label->Entry().use == Cell_Use::Caption &&
            Place_Of(*label).columns > 1 && !label->Text().empty()) {
            return label;
        }
    }
    return nullptr;
}

QString Cell_Map::Heading_Of(int column, int first_row) const {
    QString words = Captions_Above(column, first_row);
    const Control* const label = Label_Over(column, first_row);
    if (label == nullptr) {
        return words;
    }
    return To_Qt(label->Text()) + (words.isEmpty() ? words : QLatin1String(", ") + words);
}

int Cell_Map::First_Figure_Row(int column, int row) const {
    while (Is_Figure(column, row - 1)) {
        --row;
    }
    return row;
}

/// The caption before the figure, the heading of its column, or the caption before the figures to
/// its left, in this order.
QString Cell_Map::Words_Of_Cell(int column, int row, Side side) const {
    QString words = With_Side(Captions_Left_Of(column, row), side);
    if (!words.isEmpty()) {
        return words;
    }
    const int first = First_Figure_Row(column, row);
    words = With_Side(Heading_Of(column, first), side);
    if (!words.isEmpty()) {
        const bool is_alone = first == row && !Is_Figure(column, row + 1);
        return is_alone ? words : words + Row_Words(row);
    }
    int left = column - (At(column - 1, row) == nullptr ? 1 : 0); // one gap is passed over
    while (Is_Figure(left - 1, row)) {
        --left;
    }
    words = Captions_Left_Of(left, row);
    if (words.isEmpty() && Is_Figure(column, row - 1)) {
        words = Words_Of_Cell(column, row - 1, side);
    }
    const bool side_tells = side != Side::Both; // the two figures of a caption apart
    return side_tells || words.isEmpty() ? With_Side(words, side) : words + QLatin1String(" 2");
}

QString Cell_Map::Spoken_Name_Of(const Control& field) const {
    if (const Own_Words* const own = Own_Words_Of(field)) {
        return To_Qt(own->words);
    }
    const Place place = Place_Of(field);
    const QString words = Words_Of_Cell(place.column, place.row, field.Present_Look().side);
    return words.isEmpty() ? To_Qt(field.Address()) : words;
}

bool Cell_Map::Is_Lift_At(int column, int row) const {
    if (!Is_Figure(column, row)) {
        return false;
    }
    const int first = First_Figure_Row(column, row);
    return Is_Caption(column, first - 1) && Is_Caption(column, first - 2) &&
           At(column, first - 1)->Text().starts_with("Lift") &&
           At(column, first - 2)->Text().ends_with("Valve");
}

bool Cell_Map::Is_Lift(const Control& field) const {
    return Is_Lift_At(Place_Of(field).column, Place_Of(field).row);
}

QString Cell_Map::Lift_Beside(const Place& place) const {
    if (Is_Lift_At(place.column, place.row)) {
        return {};
    }
    for (int distance = 1; distance < columns_; ++distance) {
        for (const int column : {place.column - distance, place.column + distance}) {
            if (Is_Lift_At(column, place.row)) {
                // Behind the lifts of both tests a figure belongs to either, or to both.
                const bool behind_both = column < place.column && Is_Lift_At(0, place.row) &&
                                         At(0, place.row)->Text() != At(column, place.row)->Text();
                return behind_both ? QString() : To_Qt(At(column, place.row)->Text()).trimmed();
            }
        }
    }
    return front_ == nullptr ? QString() : front_->Lift_Beside({.column = 1, .row = place.row});
}

QString Cell_Map::Words_With_Lift(const Control& field) const {
    const Place place = Place_Of(field);
    QString words = Spoken_Name_Of(field);
    if (!words.endsWith(Row_Words(place.row))) {
        return words;
    }
    const QString lift = Lift_Beside(place);
    const int line = place.row - First_Figure_Row(place.column, place.row) + 1;
    return words.replace(Row_Words(place.row), lift.isEmpty()
                                                   ? QLatin1String(", line ") + Digits_Of(line)
                                                   : QLatin1String(", lift ") + lift);
}

bool Cell_Map::Heads_Column(const Control& caption) const {
    const Place place = Place_Of(caption);
    if (place.columns > 1) {
        return false; // a line of its own
    }
    int right = place.column;
    while (Is_Caption(right + 1, place.row)) {
        ++right;
    }
    return !Is_Figure(right + 1, place.row);
}

bool Cell_Map::Is_Under_Heading(const Control& field) const {
    const Place place = Place_Of(field);
    return !Is_Caption(place.column - 1, place.row) &&
           Is_Caption(place.column, First_Figure_Row(place.column, place.row) - 1);
}

} // namespace kestrum::desktop
