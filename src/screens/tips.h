#pragma once

#include <string_view>

/// Help texts that sheets and engine screen share; a line break is CR LF.
namespace kestrum::tips {

inline constexpr std::string_view calculate =
    "Clicking this button causes the program to Calculate your results using your flow data.";
inline constexpr std::string_view exit_sheet =
    "Clicking this button will Quit / Close this Flow Test Screen.  --------  Did you remember to "
    "Save this Flow Test?\r\nIf you are going to Compare or Graph different Flow Test did you "
    "Click "
    "the \"Calculate Button\".";
inline constexpr std::string_view load =
    "Clicking this button causes the program to let you Load a previously Saved Test.";
inline constexpr std::string_view save =
    "Clicking this button causes the program to let you Save this Flow Test to a File.";
inline constexpr std::string_view area_ratio_in =
    "This is the ratio of the valve area versus the port area.\r\nFor a typical V8 pushrod engines "
    "heads best results are usually seen when this number is between 0.8 to 0.9";
inline constexpr std::string_view area_ratio_ex =
    "This is the ratio of the valve area versus the port area. ------- For typical short exhaust "
    "ports (less than 3 inches long) an optimum area ratio of between 1.0 for higher torque at "
    "lower rpm for real street use to 1.2 -1.25 for drag racing. For longer ports (4 inches or "
    "more) for all out race engines this number needs to fall into the 1.25 to 1.35 range.";
inline constexpr std::string_view port_in =
    "Area at manifold face or enter height and width at percieved choke point.";
inline constexpr std::string_view port_ex = port_in;
inline constexpr std::string_view corner_in_top =
    "This is the Top Corner Radius of the Intake Port";
inline constexpr std::string_view corner_in_bottom =
    "This is the Bottom Corner Radius of the Intake Port";
inline constexpr std::string_view corner_ex_top =
    "This is the Top Corner Radius of the Exhaust Port";
inline constexpr std::string_view corner_ex_bottom =
    "This is the Bottom Corner Radius of the Exhaust Port";
inline constexpr std::string_view sort =
    "Clicking this button causes the program to Sort the Flow Data using the Lift Field. Placing a "
    "Zero in the Lift Data Field will cause that field to be moved to the bottom and shifting the "
    "lines below it up. Placing 450 in the bottom line will cause it to be moved up after 400 and "
    "moving all the other lines down.";
inline constexpr std::string_view print_screen =
    "Clicking this button causes the program to Do a Print Screen of This Form to a file as a JPG.";

} // namespace kestrum::tips
