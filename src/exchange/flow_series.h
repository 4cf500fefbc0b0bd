#pragma once

#include "core/session.h"

#include <array>
#include <string_view>

namespace kestrum {

/// The flow tests of other programs that share one body of lines. They differ in what stands in
/// front of it and behind it.
enum class Flow_Layout { Flw, Dfw, Dyn, Dym };

/// The layout that goes with the last three characters of a file's name; `Flw` for any other.
[[nodiscard]] Flow_Layout Flow_Layout_Of(std::string_view path);

/// Lifts in inches, and flows, of one side. Places behind the last point are 0.
struct Flow_Series {
    static constexpr std::size_t places = 17;

    std::array<Real, places> lift;
    std::array<Real, places> flow;
    Real pressure;
};

struct Flow_Points {
    Flow_Series intake;
    Flow_Series exhaust;
};

enum class Flow_Reading { Done, Not_Of_This_Kind };

/// Reads a file's decoded content: the points into `points`, header figures into the sheet's
/// fields. Counts the lines in the session's `records_read`. Raises 62 behind the last line, 13 for
/// a number that is none, 9 for an 18th point of a side; what was read by then stays.
[[nodiscard]] Flow_Reading Read_Flow_Points(Session& session, Flow_Sheet& sheet, Flow_Layout layout,
                                            std::string_view content, Flow_Points& points);

} // namespace kestrum
