#include "sheet/flow_rows.h"

#include "sheet/seat_geometry.h"
#include "sheet/sheet_state.h"

namespace kestrum {

namespace {

/// Flow in a cubic foot per minute and square inch at a discharge coefficient of 1.
constexpr double full_flow_per_area = 146;

/// One lift row of one side.
struct Row_Side {
    const Flow_Context& context;
    const Valve_Side& side;
    int row;

    [[nodiscard]] Real Number(const Control& field) const { return context.Number(field); }

    [[nodiscard]] const Units& Factors() const { return context.units.factors; }

    [[nodiscard]] const Control& Lift() const { return context.sheet.Text101(row); }

    [[nodiscard]] Control& Corrected() const { return side.corrected(row); }

    /// Corrected flow in cubic feet per minute.
    [[nodiscard]] Real Cubic_Feet() const { return Number(Corrected()) / Factors().cubic_foot; }

    [[nodiscard]] bool Is_Intake() const { return &side == &context.intake; }

    void Put(Control& target, Real value, Format format) const {
        context.Put(target, value, format);
    }
};

void Correct_Flow(const Row_Side& place) {
    const Control& observed = place.side.observed(place.row);
    Control& depression = place.side.depression(place.row);
    const Control& correction = place.context.sheet.Text110(8);
    Control& swirl = place.context.sheet.Text207(place.row);
    if (Holds_Text(observed) && Holds_Text(depression) && place.Number(depression) > 0) {
        const Real flow = place.Number(observed); // read before the pressures
        const Real pressures =
            place.Number(place.context.sheet.Text108(8)) / place.Number(depression);
        place.Put(place.Corrected(), flow * Power(pressures, 0.5),
                  place.context.units.corrected_flow);
        if (place.Number(place.Corrected()) == 0) {
            if (place.Is_Intake()) { // swirl is measured on the intake
                swirl.Set_Text("0");
            }
            depression.Set_Text("0");
        }
    } else if (Holds_Text(observed) && Holds_Text(correction)) {
        place.Put(place.Corrected(), place.Number(observed) * place.Number(correction),
                  place.context.units.corrected_flow);
    } else {
        place.Corrected().Set_Text("0");
        if (place.Is_Intake()) {
            swirl.Set_Text("0");
        }
    }
}

void Add_Flow(const Row_Side& place, Flow_Totals::Sum& sum) {
    const Real flow = place.Number(place.Corrected());
    sum.total += flow;
    if (flow != 0) {
        ++sum.count;
    }
}

/// The lift, held at a quarter of the valve diameter. Texts are copied as they stand.
void Effective_Lift(const Row_Side& place) {
    Control& target = place.side.effective_lift(place.row);
    const Control& limit = place.side.quarter_diameter;
    if (!Holds_Text(place.Lift()) || !Holds_Text(limit)) {
        target.Set_Text("0");
        return;
    }
    target.Set_Text(place.Number(limit) < place.Number(place.Lift()) ? limit.Text()
                                                                     : place.Lift().Text());
}

void Flow_Per_Area(const Row_Side& place) {
    const Control& lift = place.side.effective_lift(place.row);
    Control& target = place.side.flow_per_area(place.row);
    if (!Holds_Text(place.Corrected()) || !Holds_Text(lift) || !(place.Number(lift) > 0)) {
        target.Set_Text("0");
        return;
    }
    const Units& units = place.Factors();
    const Real curtain = place.Number(place.side.valve_diameter) / units.inch * circle *
                         (place.Number(lift) / units.inch) / units.lift_unit;
    place.Put(target,
              place.Cubic_Feet() / curtain * units.cubic_foot * units.square_inch /
                  place.side.valves,
              &Numeric_Text::Fmt_Two_Place);
}

void Discharge(const Row_Side& place) {
    const Control& flow = place.side.flow_per_area(place.row);
    Control& target = place.side.discharge(place.row);
    if (!Holds_Text(flow)) {
        target.Set_Text("0");
        return;
    }
    place.Put(target,
              place.Number(flow) / place.Factors().cubic_foot / place.Factors().square_inch /
                  full_flow_per_area,
              &Numeric_Text::Fmt_Three_Place);
}

void Flow_Ratio(const Flow_Context& context, int row, Flow_Totals& totals) {
    const Control& intake = context.intake.corrected(row);
    const Control& exhaust = context.exhaust.corrected(row);
    Control& target = context.sheet.Text113(row);
    if (!Holds_Text(exhaust) || !Holds_Text(intake) || !(context.Number(intake) > 0)) {
        target.Set_Text("0");
        return;
    }
    const Real ratio = context.Number(exhaust) / context.Number(intake);
    context.Put(target, ratio, &Numeric_Text::Fmt_Three_Place);
    // The sums take the quotient itself, not the rounded text. The lift has no guard here.
    const Real lift = context.Number(context.sheet.Text101(row));
    if (!(lift > context.Number(context.sheet.Text110(6))) && lift != 0) {
        totals.ratio_to_max.Add(ratio);
    }
    if (lift != 0) {
        totals.ratio_all.Add(ratio);
    }
}

void Port_Velocity(const Row_Side& place) {
    const Control& area = place.side.mean_area;
    Control& target = place.side.port_velocity(place.row);
    if (!Holds_Text(place.Corrected()) || !Holds_Text(area) || !(place.Number(area) > 0)) {
        target.Set_Text("0");
        return;
    }
    constexpr double square_inches_in_foot = 144;
    const Units& units = place.Factors();
    place.Put(target,
              place.Cubic_Feet() / 60 /
                  (place.Number(area) / units.square_inch / square_inches_in_foot) * units.foot,
              &Numeric_Text::Fmt_One_Place);
}

void Effective_Flow_Area(const Row_Side& place) {
    Control& area_field = place.side.effective_area(place.row);
    Control& velocity = place.side.effective_velocity(place.row);
    if (!Holds_Text(place.Lift()) || !Holds_Text(place.side.quarter_diameter) ||
        !(place.Number(place.Lift()) > 0)) {
        area_field.Set_Text("0");
        velocity.Set_Text("0");
        return;
    }
    const Units& units = place.Factors();
    Numeric_Text& numbers = place.context.session.numbers;
    // The row's own lift, not the effective one; the velocity takes the area unrounded.
    const Real area = Effective_Area(Sheets_Of(place.context.session).curtain_areas, place.side,
                                     place.Number(place.Lift()) / 1000, units);
    place.Put(area_field, area * units.square_inch, place.context.units.effective_area);
    const Real flow = numbers.Read_Either_Mark(place.Corrected());
    place.Put(velocity, flow / units.cubic_foot / area * 2.4 * units.foot,
              &Numeric_Text::Fmt_One_Place);
}

void Effective_Discharge(const Row_Side& place) {
    const Control& area = place.side.effective_area(place.row);
    Control& target = place.side.effective_discharge(place.row);
    if (!Holds_Text(area) || !(place.Number(area) > 0)) {
        target.Set_Text("0");
        return;
    }
    place.Put(target,
              place.Cubic_Feet() / (place.Number(area) / place.Factors().square_inch) /
                  full_flow_per_area,
              &Numeric_Text::Fmt_Three_Place);
}

void Lift_Ratio(const Row_Side& place) {
    Control& target = place.side.lift_ratio(place.row);
    if (!Holds_Text(place.Lift()) || !(place.Number(place.Lift()) > 0)) {
        target.Set_Text("0");
        return;
    }
    place.Put(target,
              place.Number(place.Lift()) / place.Number(place.side.valve_diameter) /
                  place.Factors().lift_unit,
              &Numeric_Text::Fmt_Three_Place);
}

void Required_Ratio(const Flow_Context& context) {
    const Real compression = context.Number(context.sheet.Text110(5));
    context.Put(context.sheet.Text113(10),
                0.0011 * Squared(compression) - 0.0404 * compression + 1.029,
                &Numeric_Text::Fmt_Three_Place);
}

void Existing_Ratio(const Flow_Context& context, const Flow_Totals& totals) {
    Control& target = context.sheet.Text113(11);
    const Flow_Totals::Sum& sum = totals.ratio_to_max;
    if (sum.total > 0 && sum.count > 0) {
        context.Put(target, sum.total / sum.count, &Numeric_Text::Fmt_Three_Place);
        return;
    }
    target.Set_Text("-");
    context.session.Message(context.units.ratio_advice, Box_Icon::Exclamation);
}

void Flow_Average(const Flow_Context& context, const Valve_Side& side,
                  const Flow_Totals::Sum& sum) {
    context.Put(side.total_flow, sum.total, &Numeric_Text::Fmt_One_Place);
    context.Put(side.mean_flow, sum.total / sum.count, &Numeric_Text::Fmt_One_Place);
}

} // namespace

void Calc_Lift_Row(const Flow_Context& context, int row) {
    Flow_Totals& totals = Sheets_Of(context.session).flow_totals;
    const Row_Side intake{context, context.intake, row};
    const Row_Side exhaust{context, context.exhaust, row};
    Correct_Flow(intake);
    Add_Flow(intake, totals.intake_flow);
    Correct_Flow(exhaust);
    Add_Flow(exhaust, totals.exhaust_flow);
    const auto both = [&](void (*step)(const Row_Side&)) {
        step(intake);
        step(exhaust);
    };
    both(Effective_Lift);
    both(Flow_Per_Area);
    both(Discharge);
    Flow_Ratio(context, row, totals);
    both(Port_Velocity);
    both(Effective_Flow_Area);
    both(Effective_Discharge);
    both(Lift_Ratio);
}

void Calc_Averages(const Flow_Context& context) {
    const Flow_Totals& totals = Sheets_Of(context.session).flow_totals;
    Required_Ratio(context);
    Existing_Ratio(context, totals);
    const Flow_Totals::Sum& all = totals.ratio_all;
    if (all.total > 0 && all.count > 0) {
        context.Put(context.sheet.Text113(12), all.total / all.count,
                    &Numeric_Text::Fmt_Three_Place);
    }
    Flow_Average(context, context.intake, totals.intake_flow);
    Flow_Average(context, context.exhaust, totals.exhaust_flow);
}

} // namespace kestrum
