#pragma once

#include "presentation/field_help.h"

#include <array>

namespace kestrum::field_help {

using Role = Cell_Role;
using enum Screen_Kind;

constexpr Field_Help Of(Cell_Role role, std::string_view name, std::string_view words,
                        Unit_Names unit = {}) {
    return {.role = role, .name = name, .words = words, .unit = unit};
}

constexpr Field_Help At(Screen_Kind screen, std::string_view array, int row, std::string_view name,
                        std::string_view words, Unit_Names unit = {}) {
    return {screen, Role::None, array, row, row, name, words, unit};
}

constexpr Field_Help In(std::string_view array, std::string_view name, std::string_view words,
                        Unit_Names unit = {}) {
    return {Sheet, Role::None, array, 16, 30, name, words, unit};
}

constexpr Field_Help Column(std::string_view array, std::string_view name, std::string_view words) {
    return {Compare, Role::None, array, 16, 30, name, words};
}

inline constexpr Unit_Names speed_of_piston{"ft/min", "m/min"};
inline constexpr Unit_Names rpm{"rpm", "rpm"};
inline constexpr Unit_Names cc{"cc", "cc"};
inline constexpr Unit_Names degrees{"degrees", "degrees"};
inline constexpr Unit_Names column_of_water{"in of water", "as measured"};

// Formulas are those of US units; in metric mode the same figures are brought there and back.
inline constexpr auto table = std::to_array<Field_Help>({
    At(Engine, "Text101", 8, "Compression ratio",
       "Volume above the piston at the bottom of its stroke over that at the top, from the "
       "engine's "
       "build sheet; 25 at most."),
    At(Engine, "Text104", 3, "Bore", "Diameter of the engine's cylinder, by bore gauge."),
    At(Engine, "Text105", 3, "Stroke",
       "Way of the piston from top to bottom: twice the crank's "
       "throw."),
    At(Engine, "Text111", 3, "Number of cylinders",
       "Cylinders of the whole engine; empty or 0 counts as 8."),
    At(Engine, "Text103", 3, "Mean port area",
       "Mean section of the intake port, from the flow sheet; with User above Peak HP RPM it is "
       "worked out as stroke x bore\xC2\xB2 x 0.00353678 x RPM / port speed."),
    At(Engine, "Text103", 8, "Flow at peak lift",
       "Corrected intake flow at the cam's full lift, from the flow sheet."),
    At(Engine, "Text101", 3, "Mach number",
       "Limiting speed in the port as a part of the speed of sound: compression ratio x 0.005 + "
       "0.495, or your own with User above it, 1 at most."),
    At(Engine, "Text102", 3, "Port speed at peak VE", "The same as a speed: Mach number x 1125."),
    At(Engine, "Text106", 3, "Piston area", "Area of the bore: bore\xC2\xB2 x 0.7854."),
    At(Engine, "Text107", 3, "Engine size",
       "Displacement of all cylinders: bore\xC2\xB2 x 0.7854 x stroke x cylinders."),
    At(Engine, "Text108", 3, "Cylinder size", "Engine size / cylinders."),
    At(Engine, "Text109", 3, "Peak HP RPM",
       "Speed at which the port reaches its limit: port speed x port area / (stroke x bore\xC2\xB2 "
       "x 0.00353678), or your own with User above it.",
       rpm),
    At(Engine, "Text110", 3, "Shift RPM", "Where to shift: Peak HP RPM x 1.07.", rpm),
    At(Engine, "Text102", 8, "Mean piston speed",
       "At Peak HP RPM, two strokes a turn: stroke x RPM x 2 / 12.", speed_of_piston),
    At(Engine, "Text104", 8, "Best torque",
       "What the engine's size can give with a good cam: engine size x torque per cubic inch."),
    At(Engine, "Text105", 8, "Power by port area",
       "What the section of the port allows: best torque x 0.88 x Peak HP RPM / 5252."),
    At(Engine, "Text106", 8, "Power by airflow",
       "What the flow at peak lift allows, for 5.5 pounds of air an hour and HP: flow x 2.2 / "
       "(0.6446 / (1 - 1 / compression ratio^0.44)) x cylinders / 8; best about 5 % above the "
       "power "
       "by port area."),
    At(Engine, "Text107", 8, "Torque per cubic inch",
       "From the compression ratio CR: CR x 0.23 - CR\xC2\xB2 x 0.00678 - 0.28.",
       {"lb-ft/cu in", "Nm/cu in"}),
    At(Engine, "Text108", 8, "Torque per litre", "Torque per cubic inch x 61.",
       {"lb-ft/l", "Nm/l"}),
    At(Engine, "Text109", 8, "Power per cubic inch", "Power by airflow / engine size.",
       {"HP/cu in", "kW/cu in"}),
    At(Engine, "Text110", 8, "Power per litre", "Power per cubic inch x 61.", {"HP/l", "kW/l"}),
    At(Engine, "Text102", 9, "Port volume",
       "What a port holds; Calculate cc's gives area x length x 16.39.", cc),
    At(Engine, "Text104", 9, "Port length",
       "Along the middle of the port; Calculate Length gives volume / 16.39 / area."),
    At(Engine, "Text106", 9, "Port area",
       "Mean section of the port; Calculate Area gives volume / 16.39 / length."),
    At(Engine, "Text33", no_index, "Name", "Name of this engine, kept with its file."),
    At(Engine, "Text38", no_index, "Comments", "Anything worth keeping with the engine's file."),
    {Engine, Role::None, "Text1", 0, 4, "Preload",
     "Flow data file in the program's folder that loads into this sheet together with Main; No for "
     "none."},
    At(Engine, "Text94", no_index, "Company", "Your company's name at the head of prints."),
    At(Engine, "Text95", no_index, "Address", "Your street at the head of prints."),
    At(Engine, "Text96", no_index, "City", "Your city at the head of prints."),
    At(Engine, "Text97", no_index, "Phone", "Your phone or mail at the head of prints."),
    At(Engine, "Text98", no_index, "Web site", "Your web page at the head of prints."),

    At(Sheet, "Text102", 0, "Part number",
       "Name of the head, by which lists, graphs and prints "
       "call the test."),
    At(Sheet, "Text104", 0, "Bore of the fixture",
       "Inner diameter of the cylinder that the head stands on during the test."),
    Of(Role::Port_Volume, "Port volume",
       "What the port holds from its face to the closed valve, by burette through a clear plate.",
       cc),
    Of(Role::Port_Length, "Centre-line length",
       "Along the middle of the port from its face to the valve seat, by a bent wire or tape."),
    Of(Role::Valve_Diameter, "Valve diameter",
       "Across the valve's head at its outer edge, by "
       "calliper."),
    Of(Role::Stem_Diameter, "Stem diameter",
       "Across the valve's stem, by micrometer where it stands in the flow."),
    Of(Role::Throat_Diameter, "Throat diameter",
       "Narrowest bore just below the valve seat, by inside gauge."),
    Of(Role::Port_Width, "Port width",
       "Across the port's section at the manifold face, or at the choke if that is narrower."),
    Of(Role::Port_Height, "Port height", "From floor to roof of the same section."),
    Of(Role::Top_Corner, "Top corner",
       "Radius of both roof corners of that section, by radius "
       "gauge; 0 for sharp ones."),
    Of(Role::Bottom_Corner, "Bottom corner",
       "Radius of both floor corners of that section, by radius gauge; 0 for sharp ones."),
    At(Sheet, "Text106", 6, "Intake valves", "Intake valves of one cylinder, 1 to 4."),
    At(Sheet, "Text108", 6, "Exhaust valves", "Exhaust valves of one cylinder, 1 to 4."),
    At(Sheet, "Text110", 5, "Compression ratio", "Of the engine that the head is for."),
    At(Sheet, "Text112", 6, "Engine bore", "Cylinder diameter of the engine that the head is for."),
    At(Sheet, "Text110", 6, "Max lift",
       "Full lift of the cam at the valve, typed like the lifts: 650 for .650 in."),
    At(Sheet, "Text108", 7, "Test pressure", "Depression at which the bench was run.",
       column_of_water),
    At(Sheet, "Text108", 8, "Correct to",
       "Depression that all flows are brought to, so that tests can be compared; mostly 28.",
       column_of_water),
    At(Sheet, "Text102", 10, "Exhaust pipe", "Whether, and which, pipe stood at the exhaust port."),
    Of(Role::Seat_Angle, "Seat angle",
       "Of the valve seat against the plane of the valve's head, as the cutter is marked.",
       degrees),
    Of(Role::Seat_Width, "Seat width", "Along the slope of the seat that touches the valve."),
    At(Sheet, "Text38", no_index, "Comments",
       "Anything worth keeping with the test, several lines."),
    In("Text101", "Valve lift",
       "How far the valve stood off its seat for this reading, by dial gauge: 200 for .200 in."),
    Of(Role::Observed_Flow, "Observed flow",
       "Flow as read from the bench at this lift, before any "
       "correction; 0 leaves the row out."),
    In("Text207", "Swirl", "Reading of the swirl meter at this lift, negative the other way round.",
       {"as measured", "as measured"}),
    Of(Role::Depression, "Floating depression",
       "Depression at which this reading was in fact taken; 0 if it was the test pressure.",
       column_of_water),
    Of(Role::Mean_Area, "Mean area",
       "Mean section of the port: volume / 16.39 / centre-line "
       "length."),
    Of(Role::Valve_Area, "Valve area",
       "Of all valves of the side: diameter\xC2\xB2 x 0.7854 x "
       "number."),
    Of(Role::Throat_Area, "Throat area",
       "Of all throats of the side: throat diameter\xC2\xB2 x 0.7854 x number."),
    Of(Role::Quarter_Diameter, "0.25D",
       "Lift at which the opening around the valve is as large as the valve: diameter / 4 x 1000."),
    Of(Role::Port_Area, "Port area",
       "Section at the face or choke less its rounded corners: width x height - 2 x corner "
       "losses."),
    Of(Role::Bottom_Loss, "Loss at a bottom corner",
       "What one rounded floor corner takes: radius\xC2\xB2 - radius\xC2\xB2 x 0.7854."),
    Of(Role::Top_Loss, "Loss at a top corner",
       "What one rounded roof corner takes: radius\xC2\xB2 - radius\xC2\xB2 x 0.7854."),
    Of(Role::Area_Ratio, "Area ratio", "Port area / valve area."),
    Of(Role::Throat_Ratio, "Throat over valve",
       "Throat diameter / valve diameter; above 0.915 little seat is left."),
    Of(Role::Bore_Ratio, "Valve over bore",
       "Valve diameter / engine bore; a caution comes above 0.545 intake and 0.46 exhaust."),
    At(Sheet, "Text110", 8, "Correction",
       "What the observed flows are multiplied by: root of (correct to / test pressure)."),
    Of(Role::Mean_Flow, "Average flow", "Sum of the corrected flows / number of rows with flow."),
    Of(Role::Total_Flow, "Total flow", "Sum of the corrected flows of all rows."),
    At(Sheet, "Text113", 10, "Required ratio",
       "Exhaust to intake flow that the engine wants: 0.0011 x CR\xC2\xB2 - 0.0404 x CR + 1.029, "
       "CR "
       "the compression ratio."),
    At(Sheet, "Text113", 11, "Existing ratio",
       "Mean of exhaust / intake flow of the rows up to Max Lift; - if there is none."),
    At(Sheet, "Text113", 12, "Ratio of all rows",
       "Mean of exhaust / intake flow of all rows with a lift."),
    Of(Role::Corrected_Flow, "Corrected flow",
       "Observed flow x correction; with a floating depression x root of (correct to / that)."),
    Of(Role::Effective_Lift, "Effective lift",
       "The lift, but 0.25D at most: beyond it the opening "
       "grows no more."),
    In("Text108", "Valve lift again", "The lift of this row once more, beside the results."),
    Of(Role::Flow_Per_Area, "Flow per area",
       "How well the opening is used: corrected flow / (valve diameter x 3.1416 x effective lift / "
       "1000) / number of valves."),
    Of(Role::Discharge, "SAE CD", "Part of the ideal flow that goes through: flow per area / 146."),
    In("Text113", "Flow ratio", "Corrected exhaust flow / corrected intake flow at this lift."),
    Of(Role::Port_Velocity, "Mean port velocity",
       "Mean speed of the air in the port: (corrected flow / 60) / (mean area / 144)."),
    Of(Role::Effective_Area, "Effective valve area",
       "Narrowest way between valve and seat, from angle, width and lift; at high lift the throat "
       "less the stem."),
    Of(Role::Effective_Velocity, "Effective valve velocity",
       "Speed through that area: corrected flow / effective valve area x 2.4."),
    Of(Role::Effective_Discharge, "Effective SAE CD",
       "Corrected flow / effective valve area / 146."),
    Of(Role::Lift_Ratio, "L/D",
       "Lift / valve diameter, by which valves of different size compare; "
       "0.25 is 0.25D."),

    At(Compare, "Text1", no_index, "Y axis low",
       "Your lower end of the graph's Y axis for % types; - lets the program choose."),
    At(Compare, "Text2", no_index, "Y axis high",
       "Your upper end of the graph's Y axis; - lets the program choose."),
    At(Compare, "Text3", no_index, "Valve lift 1",
       "A lift that the graph marks by a line, as the cam's; - for none."),
    At(Compare, "Text4", no_index, "Valve lift 2",
       "A second lift that the graph marks; - for none."),
    At(Compare, "Text71", no_index, "Caption 1", "First line below the graph."),
    At(Compare, "Text72", no_index, "Caption 2", "Second line below the graph."),
    Column("Text101", "X of From",
           "Lift or L/D of the From test's row, as it stands on its sheet."),
    Column(
        "Text102", "From, intake",
        "The From test's intake figure of the chosen type at this row; port energies in the last "
        "two types."),
    Column(
        "Text103", "From, exhaust",
        "The From test's exhaust figure of the chosen type at this row; port energies in the last "
        "two types."),
    Column("Text104", "To, intake", "The To test's intake figure at the same row."),
    Column("Text105", "To, exhaust", "The To test's exhaust figure at the same row."),
    Column("Text106", "X of To",
           "Lift or L/D of the To test's row; rows are compared, so it should be that of From."),
    Column("Text107", "Change, intake",
           "To less From; in % types From / To x 100 - 100; in energy types the From intake port's "
           "energy, air mass / 2 x speed\xC2\xB2."),
    Column(
        "Text108", "Change, exhaust, or energy",
        "In % types From / To x 100 - 100 of the exhaust; in energy types the From exhaust port's "
        "energy."),
    Column("Text109", "Change, exhaust",
           "To less From of the exhaust; in % types the intake's change again; in energy types the "
           "To intake port's energy."),
    Column("Text110", "Change or energy",
           "In % types the exhaust's change again; in energy types the To exhaust port's energy."),
});

} // namespace kestrum::field_help
