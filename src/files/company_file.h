#pragma once

#include "core/session.h"

#include <string>

namespace kestrum {

/// Asks for a file with the company's name and address and puts its lines into the fields of
/// `Main`. A line of no known key is told and passed over.
void Load_Company_File(Session& session);

/// The same for a file that is known. False when it could not be read to its end, which a box has
/// told.
[[nodiscard]] bool Read_Company_File(Session& session, const std::string& path);

/// Asks for a name and saves the company's lines.
void Save_Company_File(Session& session);

} // namespace kestrum
