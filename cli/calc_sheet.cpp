#include "cli/calc_sheet.h"

#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "platform/file_store.h"
#include "platform/run_time_error.h"
#include "sheet/flow_calculation.h"

namespace kestrum::cli {

Calc_Sheet::Calc_Sheet(bool metric)
    : metric_(metric), session_(boxes_, windows_, Surroundings{}), sheet_(session_.Sheet(1)) {
    // As at a start: the stored test is calculated in US units, then the metric box is set. No
    // session file is looked for, which could bring numbers of its own.
    Calc_Flow_Test(session_, sheet_);
    Set_Metric(session_, metric);
    for (const Control& control : sheet_.Controls()) {
        start_texts_.push_back(control.Text());
    }
    static_cast<void>(sheet_.Take_Changes());
    figures_ = Flow_Figures(sheet_, metric);
}

/// Puts back what the last file has changed, which is far cheaper than a new sheet.
void Calc_Sheet::Start_Over() {
    const Control* const first = sheet_.Controls().data();
    for (Control* const control : sheet_.Take_Changes()) {
        control->Set_Text(start_texts_[static_cast<std::size_t>(control - first)]);
    }
    boxes_.Clear();
}

bool Calc_Sheet::Load(const std::string& path) {
    Start_Over();
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error& failure) {
        boxes_.Note("Flow Data File has Not been Loaded -- " + failure.Description());
        return false;
    }
    return Read_Flow_Records(session_, sheet_, bytes);
}

} // namespace kestrum::cli
