#pragma once

#include "core/session.h"

#include <string>

namespace kestrum {

/// A sheet's corrected flow as the text of a `.dfw` file, and how many points it holds.
struct Dfw_File {
    std::string text;
    int intake_points = 0;
    int exhaust_points = 0;
};

/// Asks what the file is for and for its name, writes it, and tells what may go wrong with it.
void Export_DFW_File(Session& session, const Flow_Sheet& sheet);

/// Composes the file. The engine analyzer wants some lines more. Raises 13 for a lift, a flow or a
/// valve that is no number.
[[nodiscard]] Dfw_File Dfw_File_Of(Session& session, const Flow_Sheet& sheet,
                                   bool for_engine_analyzer);

/// Some readers take ten points alone.
void Warn_Of_Many_Points(Session& session, const Dfw_File& file, bool for_engine_analyzer);

} // namespace kestrum
