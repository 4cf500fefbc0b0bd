#include "base/units.h"

namespace kestrum {

namespace {

constexpr double lifts_in_inch = 1000; // sheets keep lifts in thousandths of an inch

} // namespace

Unit_Names Unit_Of(Quantity quantity) {
    switch (quantity) {
    case Quantity::Length:
        return {"in", "mm"};
    case Quantity::Lift:
        return {"1/1000 in", "mm"};
    case Quantity::Area:
        return {"sq in", "sq mm"};
    case Quantity::Displacement:
        return {"cu in", "l"};
    case Quantity::Speed:
        return {"ft/s", "m/s"};
    case Quantity::Flow:
        return {"cfm", "m3/min"};
    case Quantity::Flow_Per_Area:
        // The metric figure is the US one times both factors, so it is no quotient any more.
        return {"cfm/sq in", "m3/min sq mm"};
    case Quantity::Torque:
        return {"lb-ft", "Nm"};
    case Quantity::Power:
        return {"HP", "kW"};
    case Quantity::None:
    case Quantity::Ratio:
        break;
    }
    return {};
}

Real To_Metric(Real value, Quantity quantity) {
    switch (quantity) {
    case Quantity::Length:
        return value * factor::inch;
    case Quantity::Lift:
        return value * factor::inch / lifts_in_inch;
    case Quantity::Area:
        return value * factor::square_inch;
    case Quantity::Displacement:
        return value / factor::litre;
    case Quantity::Speed:
        return value * factor::foot;
    case Quantity::Flow:
        return value * factor::cubic_foot;
    case Quantity::Flow_Per_Area:
        return value * factor::square_inch * factor::cubic_foot;
    case Quantity::Torque:
        return value * factor::pound_foot;
    case Quantity::Power:
        return value * factor::horsepower;
    case Quantity::None:
    case Quantity::Ratio:
        break;
    }
    return value;
}

Real To_Us(Real value, Quantity quantity) {
    switch (quantity) {
    case Quantity::Length:
        return value / factor::inch;
    case Quantity::Lift:
        return value / factor::inch * lifts_in_inch;
    case Quantity::Area:
        return value / factor::square_inch;
    case Quantity::Displacement:
        return value * factor::litre;
    case Quantity::Speed:
        return value / factor::foot;
    case Quantity::Flow:
        return value / factor::cubic_foot;
    case Quantity::Flow_Per_Area:
        return value / factor::square_inch / factor::cubic_foot;
    case Quantity::Torque:
        return value / factor::pound_foot;
    case Quantity::Power:
        return value / factor::horsepower;
    case Quantity::None:
    case Quantity::Ratio:
        break;
    }
    return value;
}

} // namespace kestrum
