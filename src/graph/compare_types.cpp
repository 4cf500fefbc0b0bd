#include "graph/compare_types.h"

#include <array>

namespace kestrum {

namespace {

using N = Numeric_Text;
using enum Comparison;

constexpr Format two = &N::Fmt_Two_Place;
constexpr Format three = &N::Fmt_Three_Place;

constexpr Compare_Type Percent_Type(std::string_view intake, std::string_view exhaust,
                                    Comparison comparison, std::string_view axis_text) {
    return {intake, exhaust, comparison, two, Axis_Rule::Percent, axis_text, axis_text};
}

constexpr std::array<Compare_Type, compare_type_count> types{{
    {"Text102", "Text103", Difference, two, Axis_Rule::Tens_Or_One, "CFM @ 28\"", "M^3 @ 28\""},
    {"Text109", "Text110", Difference, two, Axis_Rule::Per_Area, "CFM Sq In", "M^3 Min Sq mm"},
    {"Text114", "Text115", Port_Energy, two, Axis_Rule::Tens, "Port Velocity - Ft/Sec",
     "Port Velocity - M/Sec"},
    {"Text114", "Text115", Port_Energy, two, Axis_Rule::Whole, "Port Energy - Ft/Lbs",
     "Port Energy - Joules"},
    // The arrow texts have two blanks; wanted.
    {"Text114", "Text115", Port_Energy_Density, two, Axis_Rule::Whole,
     "Port Energy Density Ft-Lbs/Sq Inch/Foot", "Port Energy Density Joules/Sq mm/Meter",
     "Port Energy  Density Ft-Lbs/Sq Inch/Foot", "Port Energy  Density Joules/Sq mm/Meter"},
    {"Text203", "Text204", Difference, two, Axis_Rule::Tens_Show_Big, "Effective Velocity - Ft/Sec",
     "Effective Velocity - M/Sec"},
    {"Text207", "Text207", Intake_Difference, two, Axis_Rule::Swirl, "Swirl RPM", "Swirl RPM"},
    {"Text111", "Text112", Difference, three, Axis_Rule::Coefficient,
     "SAE Coefficient of Discharge", "SAE Coefficient of Discharge", "SAE CD", "SAE CD"},
    {"text205", "Text206", Difference, three, Axis_Rule::Coefficient,
     "Effecetive SAE Coefficient of Discharge", "Effecetive SAE Coefficient of Discharge",
     "Effecetive SAE CD", "Effecetive SAE CD"},
    Percent_Type("Text102", "Text103", Percent, "% Flow Change"),
    Percent_Type("Text109", "Text110", Percent, "% CFM Per Sq/Inch Change"),
    Percent_Type("Text111", "Text112", Percent, "% SAE CD Change"),
    Percent_Type("Text114", "Text115", Percent, "% Mean Port Velocity Change"),
    Percent_Type("text205", "Text206", Percent, "% Effective SAE CD Change"),
    {"Text203", "Text204", Percent, two, Axis_Rule::Percent, "% Effective Velocity Change",
     "% Effective Velocity Change", "% Effectivet Velocity Change", "% Effectivet Velocity Change"},
    Percent_Type("Text207", "Text207", Signed_Percent, "% Swirl Change"),
    Percent_Type("Text114", "Text115", Percent_Energy, "% Port Energy Change"),
    Percent_Type("Text114", "Text115", Percent_Density, "% Port Energy Density Change"),
}};

} // namespace

const Compare_Type& Compare_Type_Of(int number) {
    return types.at(static_cast<std::size_t>(number));
}

} // namespace kestrum
