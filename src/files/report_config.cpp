#include "files/report_config.h"

#include "base/text.h"
#include "platform/file_store.h"
#include "records/named_files.h"
#include "records/record_reading.h"

#include <array>
#include <cmath>

namespace kestrum {

namespace {

constexpr std::string_view config_filter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Configuration Files (*.cfg)|*.cfg";
constexpr Reading_Words config_reading{
    .not_handled_title = "TARVEX - Error Message",
    .stopped = "Error Loading Configuration Data File --- If you have Not edited the file Please "
               "Contact us!",
    .stopped_icon = Box_Icon::Exclamation};

// The arrays of the screen in the order of the file.
constexpr std::array<std::string_view, 2> option_arrays{"Option1", "Option2"};
constexpr std::array<std::string_view, 3> check_arrays{"Check3", "Check1", "Check2"};

constexpr std::size_t key_length = 7;

/// Whether a key of lower case, "option1" or "check1_", is the one of an array.
bool Names(std::string_view key, std::string_view array, std::string_view behind) {
    const std::string name = Lower_Copy(array);
    return key.starts_with(name) && key.substr(name.size()) == behind;
}

/// The whole part of a number, as an index. Raises 6 beyond 16 bits.
int Index_From(const Numeric_Text& numbers, std::string_view text) {
    constexpr double beyond = 32768;
    const double whole = std::floor(numbers.Read(text).Value());
    if (std::abs(whole) >= beyond) {
        Fail(error::overflow);
    }
    return static_cast<int>(whole);
}

void Choose_Option(const Control_Array& options, int index) {
    const Control& chosen = options(index);
    for (int other = 0; other < options.Size(); ++other) {
        options(other).Set_Value(&options(other) == &chosen ? 1 : 0);
    }
}

/// Puts a record of a known key into its control; false when no key fits.
bool Put_Record(const Numeric_Text& numbers, Report_Screen& screen, const Record& record) {
    const std::string_view key = record.Key(key_length);
    for (const std::string_view array : check_arrays) {
        if (Names(key, array, "_")) {
            Control& box = screen.Array(array)(Index_From(numbers, record.Row_Text(key_length)));
            box.Set_Value(record.Lower_Value() == "yes" ? 1 : 0);
            return true;
        }
    }
    for (const std::string_view array : option_arrays) {
        if (Names(key, array, "")) {
            Choose_Option(screen.Array(array), Index_From(numbers, record.Lower_Value()));
            return true;
        }
    }
    return false;
}

bool Read_Lines(Session& session, Report_Screen& screen, Line_Reader& lines) {
    session.file.records_read = 0;
    Record record;
    while (lines.Next()) {
        Count_Record(session.file.records_read);
        record.Take(lines.Line());
        if (!Put_Record(session.numbers, screen, record) &&
            !Goes_On_After(session, record.Line(), config_reading)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string Report_Config_Text(Session& session, const Report_Screen& screen) {
    const Numeric_Text& numbers = session.numbers;
    Record_Writer writer(session.file.records_written);
    for (const std::string_view array : option_arrays) {
        const Control_Array& options = screen.Array(array);
        for (int index = 0; index < options.Size(); ++index) {
            if (options(index).Value() != 0) {
                writer.Write_Line(array, numbers.Fmt_Whole(index));
            }
        }
    }
    for (const std::string_view array : check_arrays) {
        const Control_Array& boxes = screen.Array(array);
        for (int index = 0; index < boxes.Size(); ++index) {
            writer.Write_Line(std::string(array) + "_" + numbers.Fmt_Whole(index),
                              boxes(index).Value() == 1 ? "Yes" : "No");
        }
    }
    return writer.Text();
}

void Save_Report_Config(Session& session, const Report_Screen& screen) {
    try {
        constexpr int config_files = 3;
        session.file.path = Chosen_File(session, Chooser_Mode::Save, config_filter, config_files);
        Keep_File(session, session.file.path, Report_Config_Text(session, screen));
    } catch (const Run_Time_Error&) {
        session.Message("Configuration File has NOT been Saved", Box_Icon::Exclamation);
        return;
    }
    session.Message(session.numbers.Fmt_Whole(session.file.records_written) + " Records Written");
}

void Load_Report_Config(Session& session, Report_Screen& screen) {
    std::string bytes;
    try {
        bytes = Bytes_Of_File(session, "", config_filter);
    } catch (const Run_Time_Error&) {
        session.Message("Configuration File has Not been Loaded", Box_Icon::Exclamation);
        return;
    }
    if (Read_Report_Config(session, screen, bytes)) {
        session.Message(session.numbers.Fmt_Thousands(session.file.records_read) + " Records Read");
    }
}

bool Read_Report_Config(Session& session, Report_Screen& screen, std::string_view bytes) {
    const std::string content = Decoded(bytes);
    Line_Reader lines(content);
    try {
        return Read_Lines(session, screen, lines);
    } catch (const Run_Time_Error&) {
        session.Message("Invalid Input Record # - " +
                            session.numbers.Fmt_Thousands(session.file.records_read) +
                            "   Data --> " + std::string(lines.Line()),
                        Box_Icon::Exclamation);
        return false;
    }
}

} // namespace kestrum
