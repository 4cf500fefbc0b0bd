#include "files/main_data_file.h"

#include "base/text.h"
#include "core/decimal_switch.h"
#include "engine/engine_calculation.h"
#include "files/main_records.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "records/record_reading.h"
#include "records/unnamed_inputs.h"

#include <optional>

namespace kestrum {

namespace {

constexpr std::string_view main_data_filter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Main Data Files (*.dta)|*.dta";
constexpr const char* main_data_ending = ".dta";
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

/// The file that the user has loaded or saved last.
struct Main_File {
    std::string path;
};

void Take_As_Used(Session& session) {
    session.wings.Of<Main_File>().path = session.file.path;
    session.file.used.push_back({session.file.path, Screen_Kind::Engine});
}

std::string Proposal_For(const Session& session) {
    const std::string& path = session.wings.Of<Main_File>().path;
    return path.empty() ? "main" + std::string(main_data_ending) : path;
}

/// Whether the user hears of inputs that the file does not name.
enum class Unnamed { Are_Told, Are_Passed_Over };

bool Read_Main(Session& session, std::string_view bytes, Unnamed those) {
    const std::string content = Decoded(bytes);
    Line_Reader lines(content);
    Engine_Screen& main = session.Main();
    Unnamed_Inputs unnamed(main);
    const auto put = [&](const Record& record) {
        return unnamed.Saw(Put_Main_Record(session, record));
    };
    const auto tell = [&] {
        if (those == Unnamed::Are_Told) {
            unnamed.Tell(session);
        }
    };
    try {
        const bool is_whole = Read_Records(session, lines, main.Text38, main_data_reading, put);
        unnamed.Note(is_whole);
        if (!is_whole) {
            tell();
            return false;
        }
        Apply_Decimal_Mode(session.numbers, main);
        Calc_Engine(session);
        tell();
    } catch (const Run_Time_Error& failure) {
        unnamed.Note(false);
        Report_Bad_Record(session, failure, lines.Line());
        return false;
    }
    return true;
}

/// Nothing when the file cannot be read, which is told.
std::optional<std::string> Bytes_Of_Main_File(Session& session, std::string_view name) {
    try {
        return Bytes_Of_File(session, name, main_data_filter);
    } catch (const Run_Time_Error&) {
        session.Message("MAIN Data File has Not been Loaded");
        return std::nullopt;
    }
}

} // namespace

std::string Main_File_Text(Session& session) {
    Record_Writer writer(session.file.records_written);
    Write_Main_Records(session, writer);
    return writer.Text();
}

bool Save_Main_File(Session& session) {
    bool is_users = false;
    try {
        if (session.file.path.empty()) {
            session.file.path =
                Chosen_File(session, Chooser_Mode::Save, main_data_filter, 3,
                            {.proposal = Proposal_For(session), .completes = main_data_ending});
            is_users = true;
        }
        Calc_Engine(session);
        Keep_File(session, session.file.path, Main_File_Text(session));
        if (is_users) {
            Take_As_Used(session);
        }
        return true;
    } catch (const Run_Time_Error&) {
        session.Message("MAIN Data File has NOT been Saved");
        return false;
    }
}

bool Load_Main_File(Session& session, std::string_view name) {
    const std::optional<std::string> bytes = Bytes_Of_Main_File(session, name);
    const bool is_read = bytes && Read_Main_Records(session, *bytes);
    if (is_read && name.empty()) {
        Take_As_Used(session);
    }
    return is_read;
}

bool Load_Session_File(Session& session) {
    const std::string path = session.file.path;
    const std::optional<std::string> bytes = Bytes_Of_Main_File(session, path);
    return bytes && Read_Main(session, *bytes, Unnamed::Are_Passed_Over);
}

bool Read_Main_Records(Session& session, std::string_view bytes) {
    return Read_Main(session, bytes, Unnamed::Are_Told);
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
