#include "chart/test_figures.h"

#include "base/text.h"
#include "base/units.h"

#include <algorithm>

namespace kestrum {

namespace {

std::optional<double> Number_In(const Numeric_Text& numbers, const Control& field) {
    try {
        return numbers.Read(field.Text()).Value();
    } catch (const Run_Time_Error&) {
        return std::nullopt;
    }
}

/// Puts rows of one lift together, which count with their mean.
std::vector<Lift_Point> Merged(std::vector<Lift_Point> rows) {
    std::ranges::stable_sort(rows, {}, &Lift_Point::lift);
    std::vector<Lift_Point> points;
    for (std::size_t at = 0; at < rows.size();) {
        const double lift = rows[at].lift;
        double sum = 0;
        int count = 0;
        for (; at < rows.size() && Is_Same_Lift(lift, rows[at].lift); ++at) {
            sum += rows[at].value;
            ++count;
        }
        points.push_back({.lift = lift, .value = sum / count});
    }
    return points;
}

class Figure_Taker {
public:
    Figure_Taker(const Numeric_Text& numbers, const Flow_Sheet& sheet, const Is_Named& is_named)
        : numbers_(numbers), sheet_(sheet), is_named_(is_named) {}

    [[nodiscard]] Test_Figures Take() {
        Test_Figures test;
        test.name = Without_Outer_Blanks(sheet_.Text102(0).Text());
        test.comment = sheet_.Text38.Text();
        test.pressure = Named_Number(sheet_.Text108(8));
        test.port_volume = Named_Number(sheet_.Cell(Side::Intake, Cell_Role::Port_Volume));
        test.intake.valve_diameter =
            Named_Number(sheet_.Cell(Side::Intake, Cell_Role::Valve_Diameter));
        test.exhaust.valve_diameter =
            Named_Number(sheet_.Cell(Side::Exhaust, Cell_Role::Valve_Diameter));
        test.intake.valves = Named_Number(Valve_Count(Side::Intake));
        test.exhaust.valves = Named_Number(Valve_Count(Side::Exhaust));
        if (test.Stated_At() > 0) {
            Take_Rows(test);
        }
        return test;
    }

private:
    struct Row {
        int number = 0;
        double lift = 0;
    };

    [[nodiscard]] std::optional<double> Named_Number(const Control& field) const {
        return is_named_(field) ? Number_In(numbers_, field) : std::nullopt;
    }

    [[nodiscard]] const Control& Valve_Count(Side side) const {
        return side == Side::Intake ? sheet_.Text106(6) : sheet_.Text108(6);
    }

    void Take_Rows(Test_Figures& test) {
        std::vector<Row> intake;
        std::vector<Row> exhaust;
        for (int number = zero_lift_row; number <= last_lift_row; ++number) {
            const double lift = Number_In(numbers_, sheet_.Text101(number)).value_or(0);
            if (!(lift > 0)) {
                continue;
            }
            const Row row{.number = number, .lift = lift / factor::thousandths};
            const bool has_intake = Has_Flow(Side::Intake, number);
            const bool has_exhaust = Has_Flow(Side::Exhaust, number);
            if (has_intake) {
                intake.push_back(row);
            }
            if (has_exhaust) {
                exhaust.push_back(row);
            }
            test.flow_rows += has_intake || has_exhaust ? 1 : 0;
        }
        Take_Side(test.intake, Side::Intake, intake);
        Take_Side(test.exhaust, Side::Exhaust, exhaust);
    }

    [[nodiscard]] bool Has_Flow(Side side, int row) const {
        const Control& flow = sheet_.Column(side, Cell_Role::Corrected_Flow)(row);
        return Number_In(numbers_, flow).value_or(0) > 0;
    }

    void Take_Side(Side_Figures& figures, Side side, const std::vector<Row>& rows) const {
        for (const Chart_Quantity_Entry& entry : Chart_Quantity_Entries()) {
            if (Is_Known(entry, side)) {
                figures.points.at(static_cast<std::size_t>(entry.quantity)) =
                    Points_Of(entry, side, rows);
            }
        }
    }

    /// Swirl is measured on the intake.
    [[nodiscard]] bool Is_Known(const Chart_Quantity_Entry& entry, Side side) const {
        const bool has_column = entry.column != Cell_Role::None || side == Side::Intake;
        return has_column && (!entry.rests_on_valve_count || is_named_(Valve_Count(side))) &&
               std::ranges::all_of(entry.rests_on, [&](Cell_Role role) {
                   return is_named_(sheet_.Cell(side, role));
               });
    }

    [[nodiscard]] std::vector<Lift_Point> Points_Of(const Chart_Quantity_Entry& entry, Side side,
                                                    const std::vector<Row>& rows) const {
        const bool is_swirl = entry.column == Cell_Role::None;
        const Control_Array& column = is_swirl ? sheet_.Text207 : sheet_.Column(side, entry.column);
        std::vector<Lift_Point> points;
        points.reserve(rows.size());
        for (const Row& row : rows) {
            const std::optional<double> value = Number_In(numbers_, column(row.number));
            if (value && (!is_swirl || *value != 0)) {
                points.push_back({.lift = row.lift, .value = *value});
            }
        }
        return Merged(std::move(points));
    }

    const Numeric_Text& numbers_;
    const Flow_Sheet& sheet_;
    const Is_Named& is_named_;
};

} // namespace

Test_Figures Figures_Of(const Numeric_Text& numbers, const Flow_Sheet& sheet,
                        const Is_Named& is_named) {
    return Figure_Taker(numbers, sheet, is_named).Take();
}

} // namespace kestrum
