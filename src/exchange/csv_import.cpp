#include "exchange/csv_import.h"

#include "base/text.h"
#include "exchange/csv_cells.h"
#include "exchange/csv_file.h"
#include "exchange/csv_rows.h"
#include "exchange/lift_rows.h"
#include "platform/file_store.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

void Put_Rows(Flow_Sheet& sheet, const Csv_Table& table) {
    int row = zero_lift_row;
    for (const Csv_Row& source : table.sheet_rows) {
        for (const Csv_Field& field : csv_fields) {
            sheet.Array(field.array)(row).Set_Text(source.Of(field.quantity));
        }
        Put_Lift(sheet, row, source.Of(Csv_Quantity::Lift));
        ++row;
    }
}

void Tell_Refusal(Session& session, const Csv_Fault& fault) {
    const Numeric_Text& numbers = session.numbers;
    session.Message("Data from CSV File has Not been Loaded\r\n\r\nLine " +
                        numbers.Fmt_Whole(fault.Line()) + ", Column " +
                        numbers.Fmt_Whole(static_cast<double>(fault.Column())) + ": " +
                        fault.what(),
                    Box_Icon::Exclamation);
}

void Tell_Count(Session& session, const Csv_Table& table) {
    std::string text = session.numbers.Fmt_Thousands(session.file.records_read) + " Records Read";
    std::string_view before = "\r\n\r\nColumns Not Used: ";
    for (const std::string& column : table.unknown_columns) {
        text.append(before).append(column);
        before = ", ";
    }
    session.Message(text);
}

bool Calculated(Session& session, Flow_Sheet& sheet, Flow_Calculation calculate) {
    try {
        calculate(session, sheet);
    } catch (const Run_Time_Error& failure) {
        session.Message("Error Number " + session.numbers.Fmt_Whole(failure.Number()) + " -- " +
                            failure.Description() +
                            "\r\n\r\nThe Data from CSV File was Loaded but Not Calculated",
                        Box_Icon::Stop);
        return false;
    }
    return true;
}

} // namespace

void Import_CSV_File(Session& session, Flow_Sheet& sheet) {
    std::string bytes;
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Open, csv_filter, 1);
        bytes = Read_Whole_File(session.file.path);
    } catch (const Run_Time_Error&) {
        session.Message("Data from CSV File has Not been Loaded", Box_Icon::Exclamation);
        return;
    }
    Read_CSV_Rows(session, sheet, bytes);
}

bool Read_CSV_Rows(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                   Flow_Calculation calculate) {
    Csv_Table table;
    try {
        table = Read_Csv_Table(session.numbers, session.Main().Is_Metric(), Decoded(bytes));
    } catch (const Csv_Fault& fault) {
        Tell_Refusal(session, fault);
        return false;
    }
    session.file.records_read = table.rows_read;
    Put_Rows(sheet, table);
    const bool calculated = Calculated(session, sheet, calculate);
    sheet.Text39.Set_Text(session.file.path);
    Tell_Count(session, table);
    return calculated;
}

} // namespace kestrum
