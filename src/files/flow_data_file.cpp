#include "files/flow_data_file.h"

#include "base/text.h"
#include "core/decimal_switch.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "records/record_reading.h"
#include "records/unnamed_inputs.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

namespace kestrum {

namespace {

constexpr std::string_view flow_data_filter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Flow Data Files (*.dat)|*.dat";
constexpr const char* flow_data_ending = ".dat";
constexpr std::string_view loading_failed =
    "Error Loading Flow Data File --- If you have Not edited the file Please Contact us!";
constexpr Reading_Words flow_data_reading{.not_handled_title = "TARVEX - Error Message",
                                          .stopped = loading_failed,
                                          .stopped_icon = Box_Icon::Exclamation};

constexpr std::array volume_rows{0, 1, 3, 4, 6, 8, 10};
constexpr std::array exhaust_rows{0, 1, 3, 4, 6, 8};
constexpr std::array width_rows{0, 1, 2, 3, 6};
constexpr std::array height_rows{0, 1, 2, 3, 6, 7, 8};
constexpr std::array engine_rows{5, 6, 8};
constexpr std::array bore_rows{6};
constexpr std::array seat_rows{4, 5};

/// A column of the sheet with the rows that a file holds of it.
struct Key_Column {
    std::string_view array;
    std::span<const int> header_rows{};
    bool has_lift_rows = false;
    bool keeps_case = false;
    /// The reader takes every row below this one; an old slip that files may rely on.
    int takes_below = std::numeric_limits<int>::min();

    [[nodiscard]] bool Accepts(int row) const {
        return row < takes_below || (has_lift_rows && row >= zero_lift_row) ||
               std::ranges::find(header_rows, row) != header_rows.end();
    }
};

constexpr Key_Column lifts{.array = "Text101", .has_lift_rows = true};
constexpr Key_Column intake{.array = "Text102", .header_rows = volume_rows, .keeps_case = true};
constexpr Key_Column exhaust{.array = "Text104", .header_rows = exhaust_rows};
constexpr Key_Column widths{
    .array = "Text106", .header_rows = width_rows, .has_lift_rows = true, .takes_below = 5};
constexpr Key_Column exhaust_flow{.array = "Text107", .has_lift_rows = true};
constexpr Key_Column heights{.array = "Text108", .header_rows = height_rows};
constexpr Key_Column engine{.array = "Text110", .header_rows = engine_rows};
constexpr Key_Column engine_bore{.array = "Text112", .header_rows = bore_rows};
constexpr Key_Column intake_seat{.array = "Text202", .header_rows = seat_rows};
constexpr Key_Column exhaust_seat{.array = "Text204", .header_rows = seat_rows};
constexpr Key_Column swirl{.array = "Text207", .has_lift_rows = true};
constexpr Key_Column intake_depression{.array = "Text210", .has_lift_rows = true};
constexpr Key_Column exhaust_depression{.array = "Text211", .has_lift_rows = true};

constexpr std::array columns{
    lifts,       intake,      exhaust,      widths, exhaust_flow,      heights,           engine,
    engine_bore, intake_seat, exhaust_seat, swirl,  intake_depression, exhaust_depression};

/// Writes the cells of a sheet by their columns.
class Flow_Writer {
public:
    Flow_Writer(Session& session, const Flow_Sheet& sheet)
        : numbers_(session.numbers), sheet_(sheet), records_(session.file.records_written) {}

    void Header(const Key_Column& column) {
        for (const int row : column.header_rows) {
            Cell(column, row);
        }
    }

    void Lift_Rows(std::initializer_list<Key_Column> side_by_side) {
        for (int row = zero_lift_row; row <= last_lift_row; ++row) {
            for (const Key_Column& column : side_by_side) {
                Cell(column, row);
            }
        }
    }

    [[nodiscard]] Record_Writer& Records() { return records_; }

private:
    void Cell(const Key_Column& column, int row) {
        records_.Write_Line(std::string(column.array) + "_" + numbers_.Fmt_Whole(row),
                            sheet_.Array(column.array)(row).Text());
    }

    const Numeric_Text& numbers_;
    const Flow_Sheet& sheet_;
    Record_Writer records_;
};

/// An earlier version knew twelve lift rows; its files load with zero rows at the end.
void Clear_Last_Rows(Flow_Sheet& sheet) {
    constexpr int first_new_row = 28;
    for (int row = first_new_row; row <= last_lift_row; ++row) {
        for (const Control_Array* const column :
             {&sheet.Text101, &sheet.Text106, &sheet.Text107, &sheet.Text108}) {
            (*column)(row).Set_Text("0");
        }
    }
}

/// Puts a record of a known key and row into its field; false when it is neither.
bool Put_Record(const Numeric_Text& numbers, Flow_Sheet& sheet, const Record& record) {
    constexpr std::size_t key_length = 8;
    const std::string_view key = record.Key(key_length);
    const auto* const column = std::ranges::find_if(columns, [&](const Key_Column& candidate) {
        return key.starts_with("text") && key.ends_with('_') &&
               key.substr(4, key.size() - 5) == candidate.array.substr(4);
    });
    if (column == columns.end()) {
        return false;
    }
    const int row = numbers.Read_Integer(record.Row_Text());
    if (!column->Accepts(row)) {
        return false;
    }
    const std::string value =
        column->keeps_case ? std::string(record.Value()) : record.Lower_Value();
    sheet.Array(column->array)(row).Set_Text(value);
    if (column->array == lifts.array) {
        sheet.Text108(row).Set_Text(value);
    }
    return true;
}

void Report_Bad_Record(Session& session, std::string_view line) {
    session.Message({.text = "Invalid Input Record # - " +
                             session.numbers.Fmt_Thousands(session.file.records_read) +
                             "   Data --> " + std::string(line),
                     .title = {},
                     .buttons = Box_Buttons::Ok_Cancel});
    session.Message(loading_failed, Box_Icon::Exclamation);
}

} // namespace

std::string Flow_File_Text(Session& session, const Flow_Sheet& sheet) {
    Flow_Writer writer(session, sheet);
    writer.Lift_Rows({lifts});
    writer.Header(intake);
    writer.Header(exhaust);
    writer.Header(widths);
    writer.Header(engine_bore);
    writer.Lift_Rows({widths});
    writer.Lift_Rows({exhaust_flow});
    writer.Header(heights);
    writer.Header(engine);
    writer.Header(intake_seat);
    writer.Header(exhaust_seat);
    writer.Lift_Rows({swirl, intake_depression, exhaust_depression});
    writer.Records().Write_Line("Comments", sheet.Text38.Text());
    return writer.Records().Text();
}

void Save_Flow_File(Session& session, Flow_Sheet& sheet) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Save, flow_data_filter, 3,
                                        {.proposal = Proposal_For(session, sheet, flow_data_ending),
                                         .completes = flow_data_ending});
        Keep_File(session, session.file.path, Flow_File_Text(session, sheet));
        sheet.Note_Saved();
        session.file.used.push_back({session.file.path, Screen_Kind::Sheet});
    } catch (const Run_Time_Error&) {
        session.Message("Flow Data File has NOT been Saved", Box_Icon::Exclamation);
        return;
    }
    session.Message(session.numbers.Fmt_Thousands(session.file.records_written) +
                    " Records Written");
    sheet.Text39.Set_Text(session.file.path);
}

void Load_Flow_File(Session& session, Flow_Sheet& sheet, std::string_view name) {
    std::string bytes;
    try {
        bytes = Bytes_Of_File(session, name, flow_data_filter);
    } catch (const Run_Time_Error&) {
        session.Message("Flow Data File has Not been Loaded", Box_Icon::Exclamation);
        return;
    }
    if (Read_Flow_Records(session, sheet, bytes) && name.empty()) {
        session.file.used.push_back({session.file.path, Screen_Kind::Sheet});
        session.Message(session.numbers.Fmt_Thousands(session.file.records_read) + " Records Read");
    }
    // Behind the decimal switch, which would make ".dat" ",dat".
    sheet.Text39.Set_Text(session.file.path);
}

bool Read_Flow_Records(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                       Flow_Calculation calculate) {
    const std::string content = Decoded(bytes);
    Line_Reader lines(content);
    Unnamed_Inputs unnamed(sheet);
    const auto put = [&](const Record& record) {
        return unnamed.Saw(Put_Record(session.numbers, sheet, record));
    };
    try {
        Clear_Last_Rows(sheet);
        const bool is_whole = Read_Records(session, lines, sheet.Text38, flow_data_reading, put);
        unnamed.Note(is_whole);
        if (!is_whole) {
            unnamed.Tell(session);
            return false;
        }
        Apply_Decimal_Mode(session.numbers, sheet);
        sheet.Note_Saved();
        calculate(session, sheet);
        unnamed.Tell(session);
    } catch (const Run_Time_Error&) {
        unnamed.Note(false);
        Report_Bad_Record(session, lines.Line());
        return false;
    }
    return true;
}

void Restore_Flow_Inputs(Session& session, Flow_Sheet& sheet, std::string_view bytes,
                         bool same_separator) {
    const Own_File_State own(session);
    const auto put = [&](const Record& record) {
        return Put_Record(session.numbers, sheet, record);
    };
    Restore_Records(session, bytes, sheet.Text38, put);
    if (!same_separator) {
        Apply_Decimal_Mode(session.numbers, sheet);
    }
}

} // namespace kestrum
