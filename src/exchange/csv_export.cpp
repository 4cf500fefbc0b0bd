#include "exchange/csv_export.h"

#include "base/text.h"
#include "exchange/csv_cells.h"
#include "exchange/csv_file.h"
#include "platform/file_store.h"
#include "records/named_files.h"

#include <algorithm>

namespace kestrum {

namespace {

/// A number as the field shows it, but with a point. A text that is none would not read back.
std::string Cell_Of(const Numeric_Text& numbers, const Control& field) {
    std::string text(Without_Outer_Blanks(field.Text()));
    if (!text.empty()) {
        static_cast<void>(numbers(field));
    }
    std::ranges::replace(text, numbers.Point(), '.');
    return text;
}

} // namespace

std::string CSV_File_Text(Session& session, const Flow_Sheet& sheet) {
    std::string text;
    std::vector<std::string> cells;
    cells.reserve(csv_fields.size());
    for (const Csv_Field& field : csv_fields) {
        cells.emplace_back(Csv_Name_Of(field.quantity, session.Main().Is_Metric()));
    }
    Append_Csv_Line(text, cells);
    session.file.records_written = 0;
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        if (session.numbers(sheet.Text101(row)) > 0) {
            cells.clear();
            for (const Csv_Field& field : csv_fields) {
                cells.push_back(Cell_Of(session.numbers, sheet.Array(field.array)(row)));
            }
            Append_Csv_Line(text, cells);
            ++session.file.records_written;
        }
    }
    return text;
}

void Export_CSV_File(Session& session, const Flow_Sheet& sheet) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Save, csv_filter, 1,
                                        {.proposal = Proposal_For(session, sheet, ".csv")});
        Keep_File(session, session.file.path, CSV_File_Text(session, sheet));
    } catch (const Run_Time_Error&) {
        session.Message("CSV File was Not Saved", Box_Icon::Exclamation);
        return;
    }
    session.Message(session.numbers.Fmt_Thousands(session.file.records_written) +
                    " Records Written");
}

} // namespace kestrum
