#include "application/opened_files.h"

#include "base/text.h"
#include "core/null_platform.h"
#include "core/sheet_opening.h"
#include "exchange/test_formats.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "files/started_sheets.h"
#include "platform/file_store.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrum {

namespace {

/// The inputs that the sheets begin with, in both systems of units: a switch of these is no edit.
std::vector<std::string> Beginnings(const Session& session) {
    Null_Platform platform;
    Session fresh(platform, platform, session.surroundings);
    fresh.numbers = session.numbers; // before the first screen, which shows the separator
    std::vector<std::string> texts;
    for (const bool metric : {false, true}) {
        static_cast<void>(Started_Sheets(fresh, sheet_count, metric));
        for (int number = 1; number <= sheet_count; ++number) {
            texts.push_back(Flow_File_Text(fresh, fresh.Sheet(number)));
        }
    }
    return texts;
}

/// The bytes of a file, which the session then knows by its path; nothing when it cannot be read.
std::optional<std::string> Bytes_Of(Session& session, const std::string& path,
                                    std::string_view refusal) {
    session.file.path = path;
    try {
        return Read_Whole_File(path);
    } catch (const Run_Time_Error&) {
        session.Message(std::string(refusal) + "\r\n\r\n" + path, Box_Icon::Exclamation);
        return std::nullopt;
    }
}

} // namespace

bool Is_Engine_File(std::string_view path) {
    return Lower_Copy(path).ends_with(".dta");
}

Flow_Sheet* First_Free_Sheet(Session& session) {
    const std::vector<std::string> beginnings = Beginnings(session);
    for (int number = 1; number <= sheet_count; ++number) {
        Flow_Sheet& sheet = session.Sheet(number);
        if (sheet.Text39.Text().empty() &&
            std::ranges::find(beginnings, Flow_File_Text(session, sheet)) != beginnings.end()) {
            return &sheet;
        }
    }
    return nullptr;
}

void Open_Engine_File(Session& session, const std::string& path) {
    if (const auto bytes = Bytes_Of(session, path, "MAIN Data File has Not been Loaded")) {
        if (Read_Main_Records(session, *bytes)) {
            session.file.used.push_back({path, Screen_Kind::Engine});
        }
        session.Show(session.Main());
    }
}

void Open_Test(Session& session, Flow_Sheet& sheet, const std::string& path) {
    if (const auto bytes = Bytes_Of(session, path, "Flow Data File has Not been Loaded")) {
        const Test_Format format = Format_Of_Ending(path).value_or(Test_Format::Dat);
        if (Read_Test(session, sheet, format, *bytes)) {
            session.file.used.push_back({path, Screen_Kind::Sheet});
        }
        // Also when the reading has stopped: what was read by then stands in the sheet.
        sheet.Text39.Set_Text(path);
        Show_With_Caption(session, sheet);
    }
}

} // namespace kestrum
