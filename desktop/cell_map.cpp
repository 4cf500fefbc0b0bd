#include "desktop/cell_map.h"

#include "desktop/form_design.h"
#include "desktop/text_bridge.h"
#include "screens/geometry.h"

#include <QStringList>

#include <algorithm>

namespace kestrum::desktop {

namespace {

/// The side that words name by a word of their own; "In/Ex" names none.
theme::Side Side_In(const QString& words) {
    static const QStringList intake{QStringLiteral("In"), QStringLiteral("In."),
                                    QStringLiteral("Int"), QStringLiteral("Intake")};
    static const QStringList exhaust{QStringLiteral("Ex"), QStringLiteral("Ex."),
                                     QStringLiteral("Exh"), QStringLiteral("Exhaust")};
    const QStringList single = words.split(QLatin1Char(' '));
    // The last word tells, as in "CFM Sq In Ex.".
    for (qsizetype at = single.size() - 1; at >= 0; --at) {
        if (intake.contains(single[at])) {
            return theme::Side::Intake;
        }
        if (exhaust.contains(single[at])) {
            return theme::Side::Exhaust;
        }
    }
    return theme::Side::Neutral;
}

QString Joined(const QStringList& words) {
    return words.join(QLatin1Char(' ')).simplified();
}

QString Told_Side(const QString& words, theme::Side side) {
    return words +
           (side == theme::Side::Intake ? QLatin1String(", Intake") : QLatin1String(", Exhaust"));
}

QString With_Side(const QString& words, theme::Side side) {
    const bool is_told = side == theme::Side::Neutral || Side_In(words) == side;
    return words.isEmpty() || is_told ? words : Told_Side(words, side);
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
    // Of two columns under one label the intake is the first.
    const theme::Side side =
        column == Place_Of(*label).column ? theme::Side::Intake : theme::Side::Exhaust;
    const QString both =
        To_Qt(label->Text()) + (words.isEmpty() ? words : QLatin1String(", ") + words);
    return Side_In(words) == theme::Side::Neutral ? Told_Side(both, side) : both;
}

int Cell_Map::First_Figure_Row(int column, int row) const {
    while (Is_Figure(column, row - 1)) {
        --row;
    }
    return row;
}

/// The caption before the figure, the heading of its column, or the caption before the figures to
/// its left, in this order.
QString Cell_Map::Bare_Words(int column, int row) const {
    QString words = Captions_Left_Of(column, row);
    if (!words.isEmpty()) {
        return words;
    }
    const int first = First_Figure_Row(column, row);
    words = Heading_Of(column, first);
    if (!words.isEmpty()) {
        const bool is_alone = first == row && !Is_Figure(column, row + 1);
        return is_alone ? words : words + QLatin1String(", row ") + Digits_Of(row);
    }
    int left = column - (At(column - 1, row) == nullptr ? 1 : 0); // one gap is passed over
    while (Is_Figure(left - 1, row)) {
        --left;
    }
    words = Captions_Left_Of(left, row);
    if (words.isEmpty() && Is_Figure(column, row - 1)) {
        words = Bare_Words(column, row - 1);
    }
    return words.isEmpty() ? words : words + QLatin1String(" 2");
}

QString Cell_Map::Words_For(const Control& field) const {
    if (const Own_Words* const own = Own_Words_Of(field)) {
        return To_Qt(own->words);
    }
    const Place place = Place_Of(field);
    const theme::Side side = Header_Side(field);
    QString words = Bare_Words(place.column, place.row);
    if (side != theme::Side::Neutral && words.endsWith(QLatin1String(" 2"))) {
        words.chop(2); // the side tells the two apart
    }
    return With_Side(words.isEmpty() ? To_Qt(field.Address()) : words, side);
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

theme::Side Cell_Map::Side_Of(const Control& cell) const {
    const theme::Side told = Header_Side(cell);
    if (told != theme::Side::Neutral || cell.Entry().use == Cell_Use::None) {
        return told;
    }
    const Place place = Place_Of(cell);
    if (cell.Entry().use != Cell_Use::Caption) {
        const QString words = Bare_Words(place.column, place.row);
        return Side_In(words.left(words.indexOf(QLatin1String(", row "))));
    }
    if (!Heads_Column(cell)) {
        return Side_In(To_Qt(cell.Text()));
    }
    int last = place.row; // the lines of a heading go together
    while (Is_Caption(place.column, last + 1)) {
        ++last;
    }
    return Side_In(Heading_Of(place.column, last + 1));
}

} // namespace kestrum::desktop
