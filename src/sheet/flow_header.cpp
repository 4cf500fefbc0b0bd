#include "sheet/flow_header.h"

namespace kestrum {

namespace {

/// A circle's share of the square around it, with the digits that the trade uses.
constexpr double circle_share = 0.7854;

void Mean_Area(const Flow_Context& context, const Valve_Side& side) {
    if (Holds_Text(side.port_volume) && Holds_Text(side.port_length)) {
        const Units& units = context.units.factors;
        context.Put(side.mean_area,
                    context.Number(side.port_volume) / factor::cubic_centimetre_inch /
                        (context.Number(side.port_length) / units.inch) * units.square_inch,
                    &Numeric_Text::Fmt_Three_Place);
    }
}

void Circle_Area(const Flow_Context& context, const Valve_Side& side, const Control& diameter,
                 Control& area, Format format) {
    if (Holds_Text(diameter)) {
        const Units& units = context.units.factors;
        context.Put(area,
                    Squared(context.Number(diameter) / units.inch) * circle_share *
                        units.square_inch * side.valves,
                    format);
    }
}

struct Ratio_Warning {
    Real above;
    std::string_view text;
};

/// A ratio of two dimensions. The warning looks at the text, that is at four places.
void Ratio(const Flow_Context& context, const Control& over, const Control& under, Control& target,
           const Ratio_Warning& warning) {
    if (!Holds_Text(over) || !Holds_Text(under)) {
        return;
    }
    context.Put(target, context.Number(over) / context.Number(under),
                &Numeric_Text::Fmt_Four_Place);
    if (context.Number(target) > warning.above) {
        context.session.Message(warning.text);
    }
}

void Quarter_Diameter(const Flow_Context& context, const Valve_Side& side) {
    if (Holds_Text(side.valve_diameter)) {
        context.Put(side.quarter_diameter,
                    context.Number(side.valve_diameter) / 4 * context.units.factors.lift_unit,
                    context.units.quarter_diameter);
    }
}

void Correction(const Flow_Context& context) {
    const Control& test = context.sheet.Text108(7);
    const Control& target = context.sheet.Text108(8);
    if (Holds_Text(target) && Holds_Text(test)) {
        context.Put(context.sheet.Text110(8),
                    Power(context.Number(target) / context.Number(test), 0.5),
                    &Numeric_Text::Fmt_Four_Place);
    }
}

/// The area that a rounded corner takes from the port.
void Corner_Loss(const Flow_Context& context, const Control& radius, Control& loss) {
    if (Holds_Text(radius)) {
        const Units& units = context.units.factors;
        const Real square = Squared(context.Number(radius) / units.inch);
        context.Put(loss, (square - square * circle_share) * units.square_inch,
                    &Numeric_Text::Fmt_Up_To_Six);
    }
}

void Corner_Losses(const Flow_Context& context, const Valve_Side& side) {
    Corner_Loss(context, side.bottom_corner, side.bottom_loss);
    Corner_Loss(context, side.top_corner, side.top_loss);
}

void Port_Area(const Flow_Context& context, const Valve_Side& side) {
    if (Holds_Text(side.width) && Holds_Text(side.height)) {
        const Units& units = context.units.factors;
        const Real section =
            context.Number(side.width) / units.inch * (context.Number(side.height) / units.inch);
        const Real corners = 2 * context.Number(side.bottom_loss) / units.square_inch +
                             2 * context.Number(side.top_loss) / units.square_inch;
        context.Put(side.port_area, (section - corners) * units.square_inch,
                    &Numeric_Text::Fmt_Three_Place);
    }
}

void Area_Ratio(const Flow_Context& context, const Valve_Side& side) {
    if (Holds_Text(side.area_ratio_guard)) {
        context.Put(side.area_ratio,
                    context.Number(side.port_area) / context.Number(side.valve_area),
                    &Numeric_Text::Fmt_Three_Place);
    }
}

void Warned_Ratios(const Flow_Context& context) {
    const Valve_Side& intake = context.intake;
    const Valve_Side& exhaust = context.exhaust;
    const Control& bore = context.sheet.Text112(6);
    Ratio(context, intake.throat_diameter, intake.valve_diameter, intake.throat_ratio,
          {0.915, "Caution - The Intake Throat Valve Ratio maybe a little high"});
    Ratio(context, exhaust.throat_diameter, exhaust.valve_diameter, exhaust.throat_ratio,
          {0.915, "Caution - The Exhaust Throat Valve Ratio maybe a little high"});
    Ratio(context, intake.valve_diameter, bore, intake.bore_ratio,
          {0.545, "Caution - The Intake Valve Bore Ratio maybe a little high"});
    Ratio(context, exhaust.valve_diameter, bore, exhaust.bore_ratio,
          {0.46, "Caution - The Exhaust Valve Bore Ratio maybe a little high"});
}

} // namespace

void Calc_Header(const Flow_Context& context) {
    const Valve_Side& intake = context.intake;
    const Valve_Side& exhaust = context.exhaust;
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Mean_Area(context, *side);
    }
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Circle_Area(context, *side, side->valve_diameter, side->valve_area,
                    &Numeric_Text::Fmt_Three_Place);
    }
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Circle_Area(context, *side, side->throat_diameter, side->throat_area,
                    &Numeric_Text::Fmt_Two_Place);
    }
    Warned_Ratios(context);
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Quarter_Diameter(context, *side);
    }
    Correction(context);
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Corner_Losses(context, *side);
    }
    for (const Valve_Side* const side : {&intake, &exhaust}) {
        Port_Area(context, *side);
    }
    // Here the exhaust comes first.
    for (const Valve_Side* const side : {&exhaust, &intake}) {
        Area_Ratio(context, *side);
    }
}

} // namespace kestrum
