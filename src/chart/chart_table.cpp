#include "chart/chart_table.h"

#include "chart/chart_layout.h"
#include "chart/figure_text.h"

#include <algorithm>

namespace kestrum {

namespace {

/// A spreadsheet wants the number alone.
Table_Cell Percent_Cell(std::optional<double> percent, std::size_t test, bool is_page) {
    std::string text = Signed_Text(percent, 1);
    if (is_page && !text.empty()) {
        text += " %";
    }
    return {.text = std::move(text), .test = test};
}

std::string_view Name_Of(Chart_Side side) {
    return side == Chart_Side::Intake ? "Intake" : "Exhaust";
}

std::string Lift_Unit_Of(const Chart& chart) {
    return std::string(Entry_Of(chart.request.lift_unit).name);
}

/// The words behind a summary's title: over which lifts the means were taken.
std::string Range_Words(const Chart& chart) {
    std::string words;
    const auto text = [&](double lift) {
        return lift == 0 ? "0" : Lift_Text(lift, chart.request.lift_unit);
    };
    for (const Chart_Side side : Sides_With_Points(chart)) {
        if (const auto& range = chart.mean_range[side]) {
            const std::string own = text(range->from) + " to " + text(range->to);
            if (words.empty()) {
                words = ", mean from " + own;
            } else if (!words.ends_with(own)) {
                words += ", exhaust " + own;
            }
        }
    }
    if (chart.request.cam_lift) {
        words += ", valve event up to " + text(*chart.request.cam_lift);
    }
    return words.empty() ? words : words + " " + Lift_Unit_Of(chart);
}

/// Writes the cells of one line after the other.
class Summary_Maker {
public:
    Summary_Maker(const Chart& chart, Table_Detail detail)
        : chart_(chart), is_page_(detail == Table_Detail::Page) {}

    [[nodiscard]] Chart_Table Make() {
        table_.title = "Whole curve" + Range_Words(chart_);
        table_.rows.resize(chart_.tests.size());
        for (std::size_t place = 0; place < chart_.tests.size(); ++place) {
            table_.rows[place].push_back(
                {.text = Numbered_Name(chart_, place), .test = place, .bold = true});
        }
        table_.columns.push_back({.group = {}, .title = "Test"});
        sides_ = Sides_With_Points(chart_);
        for (const Chart_Side side : sides_) {
            Add_Side(side);
        }
        if (chart_.request.quantity == Chart_Quantity::Flow && sides_.size() > 1) {
            Add_Ratio();
        }
        return std::move(table_);
    }

private:
    using Number_Of = std::optional<double> (*)(const Chart_Entry& test, Chart_Side side);

    template <typename Text>
    void Add_Column(Table_Column column, Text text_of) {
        table_.columns.push_back(std::move(column));
        for (std::size_t place = 0; place < chart_.tests.size(); ++place) {
            table_.rows[place].push_back(text_of(place));
        }
    }

    /// A page names the sides alone; a spreadsheet has a group for each figure.
    [[nodiscard]] std::string Group(Chart_Side side, std::string_view figure) const {
        std::string group(Name_Of(side));
        return is_page_ ? group : group.append(" ").append(figure);
    }

    void Add_Side(Chart_Side side) {
        Add_Peak(side);
        Add_Figure("mean", side, [](const Chart_Entry& test, Chart_Side its_side) {
            return test.sides[its_side].mean;
        });
        if (chart_.request.cam_lift) {
            Add_Figure("event", side, [](const Chart_Entry& test, Chart_Side its_side) {
                return test.sides[its_side].event_mean;
            });
        }
    }

    void Add_Peak(Chart_Side side) {
        constexpr std::string_view figure = "peak";
        const Value_Unit& unit = chart_.request.Unit();
        const bool is_inch = chart_.request.lift_unit == Lift_Unit::Inch;
        const auto lift_text = [&](const Lift_Point& peak) {
            return Lift_Text(peak.lift, chart_.request.lift_unit);
        };
        const auto text_of = [&](const Lift_Point& peak) {
            if (!is_page_) {
                return Fixed_Text(peak.value, unit.decimals);
            }
            // Lifts of a head are named without the nought.
            const std::string lift = lift_text(peak);
            return End_Text(peak.value, unit) + " @ " +
                   (is_inch && lift.starts_with("0.") ? lift.substr(1) : lift);
        };
        const auto peak_text = [&](std::size_t place, const auto& write) {
            const std::optional<Lift_Point>& peak = chart_.tests[place].sides[side].peak;
            return Table_Cell{.text = peak ? write(*peak) : std::string()};
        };
        Add_Column({.group = Group(side, figure),
                    .title = is_page_ ? "peak at lift" : std::string(unit.name)},
                   [&](std::size_t place) { return peak_text(place, text_of); });
        if (!is_page_) {
            Add_Column({.group = Group(side, figure), .title = "at " + Lift_Unit_Of(chart_)},
                       [&](std::size_t place) { return peak_text(place, lift_text); });
        }
        Add_Gain(figure, side, [](const Chart_Entry& test, Chart_Side its_side) {
            const auto& peak = test.sides[its_side].peak;
            return peak ? std::optional(peak->value) : std::nullopt;
        });
    }

    void Add_Figure(std::string_view figure, Chart_Side side, Number_Of number) {
        const Value_Unit& unit = chart_.request.Unit();
        Add_Column(
            {.group = Group(side, figure), .title = std::string(is_page_ ? figure : unit.name)},
            [&](std::size_t place) {
                return Table_Cell{.text =
                                      Fixed_Text(number(chart_.tests[place], side), unit.decimals)};
            });
        Add_Gain(figure, side, number);
    }

    /// Over the baseline's, absolute and in per cent; a page with both sides has room for one.
    void Add_Gain(std::string_view figure, Chart_Side side, Number_Of number) {
        if (chart_.tests.size() == 1) {
            return;
        }
        const auto compared = [&, side, number](std::size_t place) {
            const auto own = number(chart_.tests[place], side);
            return place == chart_.request.baseline
                       ? Chart_Cell{.value = own, .gain = {}, .percent = {}}
                       : Compared(own, number(chart_.Baseline(), side));
        };
        Add_Column({.group = Group(side, figure), .title = "gain"}, [&](std::size_t place) {
            return Table_Cell{.text =
                                  Signed_Text(compared(place).gain, chart_.request.Unit().decimals),
                              .test = place};
        });
        if (!is_page_ || sides_.size() == 1) {
            Add_Column({.group = Group(side, figure), .title = is_page_ ? "" : "gain %"},
                       [&](std::size_t place) {
                           return Percent_Cell(compared(place).percent, place, is_page_);
                       });
        }
    }

    void Add_Ratio() {
        constexpr double whole = 100;
        const auto percent = [&](std::size_t place) {
            const auto& ratio = chart_.tests[place].ratio;
            return ratio ? std::optional(*ratio * whole) : std::nullopt;
        };
        Add_Column({.group = {}, .title = is_page_ ? "Ex / In" : "Ex / In %"},
                   [&](std::size_t place) {
                       const std::string text = Fixed_Text(percent(place), 1);
                       return Table_Cell{.text = is_page_ && !text.empty() ? text + " %" : text};
                   });
        if (!is_page_) {
            Add_Column({.group = {}, .title = "gain of Ex / In"}, [&](std::size_t place) {
                const auto own = percent(place);
                const auto base = percent(chart_.request.baseline);
                const bool has_gain = own && base && place != chart_.request.baseline;
                return Table_Cell{.text = has_gain ? Signed_Text(*own - *base, 1) : std::string(),
                                  .test = place};
            });
        }
    }

    const Chart& chart_;
    bool is_page_;
    Chart_Table table_;
    std::vector<Chart_Side> sides_;
};

/// Puts the columns of one test after the other.
class Lift_Maker {
public:
    Lift_Maker(const Chart& chart, std::span<const Chart_Side> sides, Table_Detail detail)
        : chart_(chart), sides_(sides), is_page_(detail == Table_Detail::Page) {}

    [[nodiscard]] Chart_Table Make() {
        table_.columns.push_back({.group = {}, .title = "Lift " + Lift_Unit_Of(chart_)});
        for (const Chart_Row& row : chart_.table) {
            table_.rows.push_back({{.text = Lift_Text(row.lift, chart_.request.lift_unit)}});
        }
        for (const Chart_Side side : sides_) {
            table_.title += table_.title.empty() ? Name_Of(side) : " and exhaust";
            for (std::size_t place = 0; place < chart_.tests.size(); ++place) {
                Add_Test(side, place);
            }
        }
        table_.title += chart_.tests.size() == 1
                            ? " from lift to lift"
                            : " at equal lifts, with the gain over " +
                                  Numbered_Name(chart_, chart_.request.baseline);
        return std::move(table_);
    }

private:
    void Add_Test(Chart_Side side, std::size_t place) {
        constexpr std::size_t most_with_percent = 4;
        const Value_Unit& unit = chart_.request.Unit();
        const std::string_view word = sides_.size() == 1           ? ""
                                      : side == Chart_Side::Intake ? " in"
                                                                   : " ex";
        const std::string group = Numbered_Name(chart_, place).append(word);
        const auto add = [&](std::string_view title, const auto& cell_of) {
            table_.columns.push_back({.group = group, .title = is_page_ ? "" : std::string(title)});
            for (std::size_t row = 0; row < chart_.table.size(); ++row) {
                table_.rows[row].push_back(cell_of(chart_.table[row].cells[side][place]));
            }
        };
        add(unit.name, [&](const Chart_Cell& cell) {
            return Table_Cell{.text = Fixed_Text(cell.value, unit.decimals)};
        });
        if (place == chart_.request.baseline) {
            return;
        }
        add("gain", [&](const Chart_Cell& cell) {
            return Table_Cell{.text = Signed_Text(cell.gain, unit.decimals), .test = place};
        });
        if (!is_page_ || chart_.tests.size() <= most_with_percent) {
            add("gain %", [&](const Chart_Cell& cell) {
                return Percent_Cell(cell.percent, place, is_page_);
            });
        }
    }

    const Chart& chart_;
    std::span<const Chart_Side> sides_;
    bool is_page_;
    Chart_Table table_;
};

} // namespace

Chart_Table Summary_Table(const Chart& chart, Table_Detail detail) {
    return Summary_Maker(chart, detail).Make();
}

Chart_Table Lift_Table(const Chart& chart, std::span<const Chart_Side> sides, Table_Detail detail) {
    return Lift_Maker(chart, sides, detail).Make();
}

std::vector<Chart_Side> Sides_With_Points(const Chart& chart) {
    std::vector<Chart_Side> sides;
    for (const Chart_Side side : chart_sides) {
        const bool any = std::ranges::any_of(
            chart.tests, [&](const Chart_Entry& test) { return !test.sides[side].points.empty(); });
        if (chart.request.shows[side] && any) {
            sides.push_back(side);
        }
    }
    return sides;
}

namespace {

void Append_Field(std::string& out, std::string_view text, char separator) {
    const bool wants_quotes = text.find_first_of("\"\r\n") != std::string_view::npos ||
                              text.find(separator) != std::string_view::npos;
    if (!wants_quotes) {
        out += text;
        return;
    }
    out += '"';
    for (const char letter : text) {
        out += letter;
        if (letter == '"') {
            out += letter;
        }
    }
    out += '"';
}

} // namespace

std::string Separated_Text(std::span<const Chart_Table> tables, char separator) {
    std::string out;
    for (const Chart_Table& table : tables) {
        out += out.empty() ? "" : "\n";
        for (const Table_Column& column : table.columns) {
            out += &column == &table.columns.front() ? std::string() : std::string(1, separator);
            const bool has_both = !column.group.empty() && !column.title.empty();
            Append_Field(out, column.group + (has_both ? " " : "") + column.title, separator);
        }
        out += '\n';
        for (const std::vector<Table_Cell>& row : table.rows) {
            for (const Table_Cell& cell : row) {
                out += &cell == &row.front() ? std::string() : std::string(1, separator);
                Append_Field(out, cell.text, separator);
            }
            out += '\n';
        }
    }
    return out;
}

} // namespace kestrum
