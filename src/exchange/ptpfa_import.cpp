#include "exchange/ptpfa_import.h"

#include "base/text.h"
#include "core/decimal_switch.h"
#include "exchange/lift_rows.h"
#include "exchange/ptpfa_reader.h"
#include "platform/file_store.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

constexpr std::string_view ptpfa_filter = "PTPFA Files (*.pti)|*.pti|All Files (*.*)|*.*";

void Report_Failure(Session& session, const Run_Time_Error& failure) {
    session.Message("Error Number " + session.numbers.Fmt_Whole(failure.Number()) + " -- " +
                        failure.Description() + "\r\n\r\nSome or All of the Data from PTPFA File " +
                        session.file.path + " has Not been Loaded",
                    Box_Icon::Stop);
}

} // namespace

void Import_PTPFA_File(Session& session, Flow_Sheet& sheet) {
    std::string bytes;
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Open, ptpfa_filter, 1);
        bytes = Read_Whole_File(session.file.path);
    } catch (const Run_Time_Error&) {
        session.Message("Data from PTPFA File has Not been Loaded", Box_Icon::Exclamation);
        return;
    }
    static_cast<void>(Read_PTPFA_Lines(session, sheet, bytes));
}

bool Read_PTPFA_Lines(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                      Flow_Calculation calculate) {
    const std::string content = Decoded(bytes);
    try {
        Empty_Lift_Rows(sheet);
        PTPFA_Reader reader(session, sheet, Ending_Of(session.file.path) == "pti");
        reader.Read(content);
        Apply_Decimal_Mode(session.numbers, sheet);
        reader.Apply_Decimal_Mode_To_Engine();
        calculate(session, sheet);
    } catch (const Run_Time_Error& failure) {
        Report_Failure(session, failure);
        return false;
    }
    sheet.Text39.Set_Text(session.file.path);
    return true;
}

} // namespace kestrum
