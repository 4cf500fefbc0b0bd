#include "files/main_data_file.h"

#include "base/text.h"
#include "core/decimal_switch.h"
#include "engine/engine_calculation.h"
#include "files/main_records.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "records/record_reading.h"

namespace kestrum {

namespace {

constexpr std::string_view main_data_filter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Main Data Files (*.dta)|*.dta";
constexpr Reading_Words main_data_reading{
    .not_handled_title = "MAIN - Error Message",
    .stopped = "Error Loading Main Data File --- If you have Not edited the file Please Contact "
               "us!"};

void Report_Bad_Record(Session& session, const Run_Time_Error& failure, std::string_view line) {
    const Numeric_Text& numbers = session.numbers;
    session.Message(Box{.text = "Error Number " + numbers.Fmt_Whole(failure.Number()) + " -- " +
                                failure.Description() + "Invalid Input Record # - " +
                                numbers.Fmt_Thousands(session.file.records_read) + "   Data --> " +
                                std::string(line),
                        .title = {},
                        .buttons = Box_Buttons::Ok_Cancel});
    session.Message(Box{.text = "Error Loading MAIN Data File --- If you have Not edited the file "
                                "Please Contact Customer Support!",
                        .title = "TARVEX - Error Message"});
}

} // namespace

std::string Main_File_Text(Session& session) {
    Record_Writer writer(session.file.records_written);
    Write_Main_Records(session, writer);
    return writer.Text();
}

bool Save_Main_File(Session& session) {
    try {
        if (session.file.path.empty()) {
            session.file.path = Chosen_File(session, Chooser_Mode::Save, main_data_filter, 3);
        }
        Calc_Engine(session);
        Keep_File(session, session.file.path, Main_File_Text(session));
        return true;
    } catch (const Run_Time_Error&) {
        session.Message("MAIN Data File has NOT been Saved");
        return false;
    }
}

bool Load_Main_File(Session& session, std::string_view name) {
    std::string bytes;
    try {
        bytes = Bytes_Of_File(session, name, main_data_filter);
    } catch (const Run_Time_Error&) {
        session.Message("MAIN Data File has Not been Loaded");
        return false;
    }
    return Read_Main_Records(session, bytes);
}

bool Read_Main_Records(Session& session, std::string_view bytes) {
    const std::string content = Decoded(bytes);
    Line_Reader lines(content);
    Engine_Screen& main = session.Main();
    const auto put = [&session](const Record& record) { return Put_Main_Record(session, record); };
    try {
        if (!Read_Records(session, lines, main.Text38, main_data_reading, put)) {
            return false;
        }
        Apply_Decimal_Mode(session.numbers, main);
        Calc_Engine(session);
    } catch (const Run_Time_Error& failure) {
        Report_Bad_Record(session, failure, lines.Line());
        return false;
    }
    return true;
}

void Restore_Main_Inputs(Session& session, std::string_view bytes, bool same_separator) {
    const Own_File_State own(session);
    Engine_Screen& main = session.Main();
    const auto put = [&session](const Record& record) {
        return Put_Preload_Name(session, record) || Put_Main_Record(session, record);
    };
    Restore_Records(session, bytes, main.Text38, put);
    if (!same_separator) {
        Apply_Decimal_Mode(session.numbers, main);
    }
}

} // namespace kestrum
