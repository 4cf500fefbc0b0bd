#include "exchange/csv_rows.h"

#include "base/text.h"
#include "base/units.h"
#include "exchange/csv_cells.h"
#include "screens/flow_sheet.h"

#include <algorithm>

namespace kestrum {

namespace {

using enum Csv_Quantity;

constexpr std::size_t most_rows = last_lift_row - zero_lift_row + 1;

/// A cell's number with its text, which has a point.
struct Csv_Value {
    Real number;
    std::string text = "0";
};

/// A line of the file as it was read.
struct Csv_Line {
    int line = 0;
    std::array<Csv_Value, csv_quantities> values;

    [[nodiscard]] const Csv_Value& Lift_Value() const {
        return values.at(static_cast<std::size_t>(Lift));
    }
};

/// A row whose texts are the sheet's, with what its place in the sheet goes by.
struct Placed_Row {
    int line = 0;
    Real lift;
    Csv_Row row;
};

class Csv_Table_Reader {
public:
    Csv_Table_Reader(const Numeric_Text& numbers, bool metric, std::string_view content)
        : numbers_(numbers), metric_(metric), reader_(content) {}

    [[nodiscard]] Csv_Table Read() {
        Read_Lines();
        if (lines_.empty()) {
            throw Csv_Fault(reader_.Line(), 1, "there is no row");
        }
        lift_unit_ = Lift_Unit();
        Csv_Table table{.sheet_rows = std::vector<Csv_Row>(most_rows, Empty_Row()),
                        .unknown_columns = columns_.unknown,
                        .rows_read = static_cast<int>(lines_.size())};
        Place(table.sheet_rows);
        return table;
    }

private:
    static Csv_Row Empty_Row() {
        Csv_Row row;
        row.texts.fill("0");
        return row;
    }

    void Read_Lines() {
        bool is_first = true;
        while (reader_.Next()) {
            if (is_first) {
                columns_ = Csv_Columns_Of(reader_.Cells(), reader_.Line());
            }
            if (!is_first || !columns_.is_header) {
                Take_Line();
            }
            is_first = false;
        }
    }

    void Take_Line() {
        const std::vector<std::string>& cells = reader_.Cells();
        if (lines_.size() == most_rows) {
            throw Csv_Fault(reader_.Line(), 1, "there are more than 15 rows");
        }
        // A decimal comma between commas would move all that follows by one column.
        for (std::size_t cell = columns_.cells; cell < cells.size(); ++cell) {
            if (!cells[cell].empty()) {
                throw Csv_Fault(reader_.Line(), cell + 1, "the first line has no such column");
            }
        }
        Csv_Line line{.line = reader_.Line(), .values = {}};
        for (std::size_t quantity = 0; quantity < csv_quantities; ++quantity) {
            const auto& column = columns_.known.at(quantity);
            if (column) {
                line.values.at(quantity) = Value_In(column->cell);
            }
        }
        Check_Lift(line);
        lines_.push_back(std::move(line));
    }

    /// An empty cell counts as 0.
    Csv_Value Value_In(std::size_t cell) const {
        Csv_Value value;
        if (cell >= reader_.Cells().size() || reader_.Cells()[cell].empty()) {
            return value;
        }
        value.text = reader_.Cells()[cell];
        const std::size_t comma = value.text.find(',');
        if (comma != std::string::npos && reader_.Delimiter() != ',') {
            value.text[comma] = '.';
        }
        try {
            value.number = Numeric_Text().Read(value.text);
        } catch (const Run_Time_Error&) {
            Refuse_Cell(cell, "is no number");
        }
        return value;
    }

    [[noreturn]] void Refuse_Cell(std::size_t cell, std::string_view reason) const {
        constexpr std::size_t most_shown = 40;
        throw Csv_Fault(reader_.Line(), cell + 1,
                        "\"" + std::string(Left(reader_.Cells()[cell], most_shown)) + "\" " +
                            std::string(reason));
    }

    void Check_Lift(const Csv_Line& line) const {
        const std::size_t cell = columns_.Of(Lift)->cell;
        if (cell >= reader_.Cells().size() || reader_.Cells()[cell].empty()) {
            throw Csv_Fault(line.line, cell + 1, "the lift is empty");
        }
        if (line.Lift_Value().number < 0) {
            Refuse_Cell(cell, "is a negative lift");
        }
    }

    /// Lifts without a unit are the sheet's, but nobody tests a valve below two thousandths.
    [[nodiscard]] Csv_Unit Lift_Unit() const {
        constexpr int inches_below = 2;
        const Csv_Unit unit = columns_.Of(Lift)->unit;
        if (unit != Csv_Unit::Sheet || metric_) {
            return unit == Csv_Unit::Sheet ? Csv_Unit::Millimetre : unit;
        }
        const bool all_small = std::ranges::all_of(
            lines_, [](const Csv_Line& line) { return line.Lift_Value().number < inches_below; });
        return all_small ? Csv_Unit::Inch : Csv_Unit::Thousandth;
    }

    /// A value in the text that the sheet shows.
    [[nodiscard]] std::string As_It_Stands(const Csv_Value& value) const {
        std::string text = value.text;
        std::ranges::replace(text, '.', numbers_.Point());
        return text;
    }

    [[nodiscard]] std::string Lift_Text(const Csv_Value& lift) const {
        if (metric_) {
            switch (lift_unit_) {
            case Csv_Unit::Inch:
                return numbers_.Fmt_Eight_Wide(lift.number * factor::inch);
            case Csv_Unit::Thousandth:
                return numbers_.Fmt_Eight_Wide(lift.number / factor::thousandths * factor::inch);
            default:
                return As_It_Stands(lift);
            }
        }
        switch (lift_unit_) {
        case Csv_Unit::Inch:
            return numbers_.Fmt_Whole(lift.number * factor::thousandths);
        case Csv_Unit::Millimetre:
            return numbers_.Fmt_Whole(lift.number / factor::inch * factor::thousandths);
        default:
            return numbers_.Fmt_Whole(lift.number);
        }
    }

    [[nodiscard]] std::string Other_Text(const Csv_Value& value, Csv_Unit unit) const {
        if (metric_ && unit == Csv_Unit::Cfm) {
            return numbers_.Fmt_Eight_Wide(value.number * factor::cubic_foot);
        }
        if (!metric_ && unit == Csv_Unit::Cubic_Metre) {
            return numbers_.Fmt_Eight_Wide(value.number / factor::cubic_foot);
        }
        return As_It_Stands(value);
    }

    [[nodiscard]] Placed_Row Row_Of(const Csv_Line& line) const {
        Placed_Row placed{.line = line.line, .lift = 0, .row = Empty_Row()};
        for (std::size_t quantity = 0; quantity < csv_quantities; ++quantity) {
            const auto& column = columns_.known.at(quantity);
            if (!column) {
                continue;
            }
            const Csv_Value& value = line.values.at(quantity);
            try {
                placed.row.texts.at(quantity) = quantity == static_cast<std::size_t>(Lift)
                                                    ? Lift_Text(value)
                                                    : Other_Text(value, column->unit);
            } catch (const Run_Time_Error&) {
                throw Csv_Fault(line.line, column->cell + 1, "\"" + value.text + "\" is too large");
            }
        }
        // The place goes by the lift that the sheet shows.
        placed.lift = numbers_.Read(placed.row.Of(Lift));
        return placed;
    }

    /// A row without lift goes to the sheet's row 16, the others below it; without one, a
    /// fifteenth has its place there.
    void Place(std::vector<Csv_Row>& sheet_rows) const {
        std::vector<Placed_Row> rows;
        for (const Csv_Line& line : lines_) {
            const bool holds_values = std::ranges::any_of(
                line.values, [](const Csv_Value& value) { return value.number != 0; });
            if (holds_values) {
                rows.push_back(Row_Of(line));
            }
        }
        std::ranges::stable_sort(rows, {}, &Placed_Row::lift);
        const auto zeros =
            static_cast<std::size_t>(std::ranges::count(rows, Real(0), &Placed_Row::lift));
        if (zeros > 1) {
            throw Csv_Fault(rows[1].line, columns_.Of(Lift)->cell + 1,
                            "there is a second row with lift 0");
        }
        std::size_t place = zeros == 1 || rows.size() == most_rows ? 0 : 1;
        for (const Placed_Row& placed : rows) {
            sheet_rows.at(place++) = placed.row;
        }
    }

    const Numeric_Text& numbers_;
    bool metric_;
    Csv_Reader reader_;
    Csv_Columns columns_;
    std::vector<Csv_Line> lines_;
    Csv_Unit lift_unit_ = Csv_Unit::Sheet;
};

} // namespace

Csv_Table Read_Csv_Table(const Numeric_Text& numbers, bool metric, std::string_view content) {
    return Csv_Table_Reader(numbers, metric, content).Read();
}

} // namespace kestrum
