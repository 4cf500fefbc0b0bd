#include "cli/calc_sheet.h"

#include "base/run_time_error.h"
#include "files/flow_data_file.h"
#include "files/started_sheets.h"
#include "platform/file_store.h"

namespace kestrum::cli {

Calc_Sheet::Calc_Sheet(bool metric)
    : metric_(metric),
      session_(platform_, platform_, Surroundings{}),
      sheet_(Started_Sheets(session_, 1, metric)),
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
