#include "cli/calc_sheet.h"

#include "base/run_time_error.h"
#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "platform/file_store.h"
#include "sheet/flow_calculation.h"

namespace kestrum::cli {

namespace {

/// As at a start: the stored test is calculated in US units, then the metric box is set. No
/// session file is looked for, which could bring numbers of its own.
Flow_Sheet& Started_Sheet(Session& session, bool metric) {
    Flow_Sheet& sheet = session.Sheet(1);
    Calc_Flow_Test(session, sheet);
    Set_Metric(session, metric);
    return sheet;
}

} // namespace

Calc_Sheet::Calc_Sheet(bool metric)
    : metric_(metric),
      session_(platform_, platform_, Surroundings{}),
      sheet_(Started_Sheet(session_, metric)),
      start_texts_(sheet_),
      figures_(Flow_Figures(sheet_, metric)) {}

bool Calc_Sheet::Load(const std::string& path) {
    start_texts_.Put_Back();
    platform_.Clear();
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error& failure) {
        platform_.Note("Flow Data File has Not been Loaded -- " + failure.Description());
        return false;
    }
    return Read_Flow_Records(session_, sheet_, bytes);
}

} // namespace kestrum::cli
