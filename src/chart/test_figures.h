#pragma once

#include "base/numeric_text.h"
#include "chart/chart_quantity.h"
#include "chart/monotone_curve.h"
#include "screens/flow_sheet.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrum {

/// What a calculated sheet says of one valve, in inches and at the test's pressure.
struct Side_Figures {
    std::optional<double> valve_diameter; // nothing where it is not named
    std::optional<double> valves;         // of a cylinder, the same
    /// The measured points of each quantity by ascending lift.
    std::array<std::vector<Lift_Point>, chart_quantities> points;
};

/// What a chart and the library know of a test, taken from its sheet.
struct Test_Figures {
    std::string name; // the part number
    std::string comment;
    std::optional<double> pressure; // inches of water, nothing where it is not named
    std::optional<double> port_volume;
    int flow_rows = 0;
    Side_Figures intake;
    Side_Figures exhaust;

    /// The pressure at which the figures are stated.
    [[nodiscard]] double Stated_At() const { return pressure.value_or(full_flow_pressure); }
};

/// Tells whether a header field was named by the test, or holds what stood there before.
using Is_Named = std::function<bool(const Control& field)>;

/// The figures of a sheet that was calculated in US units.
[[nodiscard]] Test_Figures Figures_Of(const Numeric_Text& numbers, const Flow_Sheet& sheet,
                                      const Is_Named& is_named);

} // namespace kestrum
