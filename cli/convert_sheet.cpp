#include "cli/convert_sheet.h"

#include "base/run_time_error.h"
#include "exchange/csv_export.h"
#include "exchange/dfw_export.h"
#include "exchange/test_formats.h"
#include "files/flow_data_file.h"
#include "files/started_sheets.h"
#include "platform/file_store.h"
#include "platform/new_file.h"

namespace kestrum::cli {

namespace {

Flow_Sheet& Sheet_Without_Flow(Session& session, bool metric) {
    Flow_Sheet& sheet = Started_Sheets(session, 1, metric);
    // A file whose calculation fails before its rows must not go out with the stored test's flow.
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        sheet.Text102(row).Set_Text("");
        sheet.Text103(row).Set_Text("");
    }
    return sheet;
}

std::string Not_Loaded(Test_Format format) {
    switch (format) {
    case Test_Format::Ptpfa:
        return "Data from PTPFA File has Not been Loaded";
    case Test_Format::Csv:
        return "Data from CSV File has Not been Loaded";
    case Test_Format::Dat:
        return "Flow Data File has Not been Loaded";
    default:
        return "No Flow File Selected";
    }
}

std::string Not_Saved(Test_Format format) {
    switch (format) {
    case Test_Format::Dfw:
        return "Problem - DFW File was Not Saved";
    case Test_Format::Csv:
        return "CSV File was Not Saved";
    default:
        return "Flow Data File has NOT been Saved";
    }
}

} // namespace

Convert_Sheet::Convert_Sheet(bool metric)
    : session_(platform_, platform_, Surroundings{}),
      sheet_(Sheet_Without_Flow(session_, metric)),
      sheet_texts_(sheet_),
      engine_texts_(session_.Main()) {}

void Convert_Sheet::Start_Over() {
    sheet_texts_.Put_Back();
    engine_texts_.Put_Back();
    platform_.Clear();
}

bool Convert_Sheet::Load(const std::string& path, Test_Format format) {
    session_.file.path = path;
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error& failure) {
        platform_.Note(Not_Loaded(format) + " -- " + failure.Description());
        return false;
    }
    return Read(bytes, format);
}

bool Convert_Sheet::Read(const std::string& bytes, Test_Format format) {
    const bool read = Read_Test(session_, sheet_, format, bytes);
    if (read && format == Test_Format::Dat) { // the readers of the others tell it themselves
        Tell_Count(session_.file.records_read, " Records Read");
    }
    return read;
}

bool Convert_Sheet::Save(const std::string& path, const Convert_Options& options) {
    try {
        const std::string text = Text_In(options);
        if (options.force && File_Exists(path)) {
            Write_Whole_File(path, text);
        } else if (!Write_New_File(path, text)) {
            platform_.Note("'" + path + "' is there already: use --force to replace it");
            return false;
        }
    } catch (const Run_Time_Error& failure) {
        platform_.Note(Not_Saved(options.to) + " -- " + failure.Description());
        return false;
    }
    Tell_Saved(options);
    return true;
}

std::string Convert_Sheet::Text_In(const Convert_Options& options) {
    if (options.to == Test_Format::Csv) {
        return CSV_File_Text(session_, sheet_);
    }
    if (options.to == Test_Format::Dat) {
        return Flow_File_Text(session_, sheet_);
    }
    dfw_ = Dfw_File_Of(session_, sheet_, options.for_engine_analyzer);
    return dfw_.text;
}

void Convert_Sheet::Tell_Saved(const Convert_Options& options) {
    if (options.to == Test_Format::Dfw) {
        Warn_Of_Many_Points(session_, dfw_, options.for_engine_analyzer);
    } else {
        Tell_Count(session_.file.records_written, " Records Written");
    }
}

void Convert_Sheet::Tell_Count(int records, const char* words) {
    platform_.Note(session_.numbers.Fmt_Thousands(records) + words);
}

} // namespace kestrum::cli
