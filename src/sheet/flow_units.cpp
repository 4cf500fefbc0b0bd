#include "sheet/flow_units.h"

namespace kestrum {

namespace {

constexpr std::string_view us_advice =
    "Problem Calculating Exisiting Intake / Exhaust Ratio\r\nOne possible cause is the Max Lift "
    "Value is to Low or Incorrect\r\n\r\nAn example would be Your Max Lift Value is .65 and You "
    "need to ENTER 650 just like you would Enter for the Flow Numbers.\r\n\r\nIf this is not the "
    "case PLEASE Save this data to a file and email it to Customer Support";
constexpr std::string_view metric_advice =
    "Problem Calculating Exisiting Intake / Exhaust Ratio\r\nOne possible cause is the Max Lift "
    "Value is to Low or Incorrect\r\n\r\nIf this is not the case PLEASE Save this data to a file "
    "and email it to Customer Support";

} // namespace

Flow_Units Us_Flow_Units() {
    return {.factors = Us_Units(),
            .quarter_diameter = &Numeric_Text::Fmt_Two_Place,
            .corrected_flow = &Numeric_Text::Fmt_One_Place,
            .effective_area = &Numeric_Text::Fmt_Three_Place,
            .sets_up_seats = true,
            .ratio_advice = us_advice};
}

Flow_Units Metric_Flow_Units() {
    return {.factors = Metric_Units(),
            .quarter_diameter = &Numeric_Text::Fmt_Three_Place,
            .corrected_flow = &Numeric_Text::Fmt_Three_Place,
            .effective_area = &Numeric_Text::Fmt_One_Place,
            .sets_up_seats = false,
            .ratio_advice = metric_advice};
}

} // namespace kestrum
