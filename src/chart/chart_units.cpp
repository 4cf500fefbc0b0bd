#include "chart/chart_units.h"

#include "base/units.h"

namespace kestrum {

const Lift_Unit_Entry& Entry_Of(Lift_Unit unit) {
    static constexpr std::array<Lift_Unit_Entry, 3> entries{
        {{"in", 1, 3}, {"thou", 1000, 0}, {"mm", factor::inch, 2}}};
    return entries.at(static_cast<std::size_t>(unit));
}

std::string Printed_Unit(std::string_view name) {
    struct Print {
        std::string_view plain;
        std::string_view printed;
    };

    constexpr std::array prints{Print{"sq cm", "cm\xC2\xB2"}, Print{"sq in", "in\xC2\xB2"},
                                Print{"m3", "m\xC2\xB3"}};
    std::string unit(name);
    for (const Print& print : prints) {
        if (const std::size_t at = unit.find(print.plain); at != std::string::npos) {
            unit.replace(at, print.plain.size(), print.printed);
        }
    }
    return unit;
}

} // namespace kestrum
