#pragma once

#include "core/session.h"

namespace kestrum {

/// The dimensions of one side's port on a sheet.
struct Port {
    const Control& volume; // cc in both unit systems
    const Control& area;
    const Control& length;
};

[[nodiscard]] Port Port_Of(const Flow_Sheet& sheet, Side side);

/// What the air in a port does at a velocity, which is a field of any screen. Foot-pounds, or
/// joules when `Main` is metric. Raises the error of a field that is no number, and 11 or 6 for a
/// port without area or length.
using Energy_Formula = Real (*)(Session& session, const Port& port, const Control& velocity);

/// Kinetic energy of the air.
[[nodiscard]] Real Energy_Of_Air(Session& session, const Port& port, const Control& velocity);
/// The same by port area and length.
[[nodiscard]] Real Energy_Density_Of_Air(Session& session, const Port& port,
                                         const Control& velocity);

} // namespace kestrum
