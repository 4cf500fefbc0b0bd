#pragma once

#include "core/session.h"
#include "records/records.h"

namespace kestrum {

/// Writes the records of a `.dta` file in their order.
void Write_Main_Records(Session& session, Record_Writer& writer);

/// Puts one record into the session; false when no key fits. Raises the error of a row, index or
/// number that is none.
bool Put_Main_Record(Session& session, const Record& record);

/// Puts a flow test's name into the preload panel as it was written and loads nothing; false for
/// another record.
bool Put_Preload_Name(Session& session, const Record& record);

} // namespace kestrum
