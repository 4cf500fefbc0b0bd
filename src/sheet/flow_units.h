#pragma once

#include "base/units.h"
#include "sheet/valve_side.h"

#include <string_view>

namespace kestrum {

/// What of a sheet's calculation goes by the unit system.
struct Flow_Units {
    Units factors;
    Format quarter_diameter;
    Format corrected_flow;
    Format effective_area;
    /// Metric calculations work with the seats of the last one in US units, of whatever sheet.
    bool sets_up_seats;
    /// What the failed in/ex ratio advises.
    std::string_view ratio_advice;
};

[[nodiscard]] Flow_Units Us_Flow_Units();
[[nodiscard]] Flow_Units Metric_Flow_Units();

/// What the steps of one calculation work on.
struct Flow_Context {
    Session& session;
    Flow_Sheet& sheet;
    const Flow_Units& units;
    Valve_Side intake;
    Valve_Side exhaust;

    [[nodiscard]] Real Number(const Control& field) const { return session.numbers(field); }

    void Put(Control& target, Real value, Format format) const {
        target.Set_Text((session.numbers.*format)(value));
    }
};

/// A length guard looks at the text alone: "0" passes.
[[nodiscard]] inline bool Holds_Text(const Control& field) {
    return !field.Text().empty();
}

} // namespace kestrum
