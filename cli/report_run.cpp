#include "cli/report_run.h"

#include "cli/line_text.h"
#include "cli/standard_streams.h"
#include "core/null_platform.h"
#include "files/flow_data_file.h"
#include "files/main_data_file.h"
#include "files/report_config.h"
#include "files/started_sheets.h"
#include "output/text_report.h"
#include "platform/file_store.h"

#include <functional>

namespace kestrum::cli {

namespace {

Surroundings In_Folder(const std::string& folder) {
    Surroundings around;
    around.folder = folder;
    return around;
}

/// A session without windows that takes the files and makes the report.
class Report_Run {
public:
    Report_Run(const Report_Options& options, const std::string& folder, std::ostream& errors)
        : options_(options), errors_(errors), session_(platform_, platform_, In_Folder(folder)) {
        static_cast<void>(Started_Sheets(session_, sheet_count, options.metric));
        platform_.Clear();
    }

    /// Every file has its say, also behind one that cannot be read.
    [[nodiscard]] bool Load() {
        bool loaded = Take(options_.main_file, "MAIN Data File", [this](std::string_view bytes) {
            return Read_Main_Records(session_, bytes);
        });
        loaded &= Take(options_.config_file, "Configuration File", [this](std::string_view bytes) {
            return Read_Report_Config(session_, session_.Form70(), bytes);
        });
        for (int number = 1; number <= sheet_count; ++number) {
            const auto index = static_cast<std::size_t>(number - 1);
            const bool has_file = index < options_.files.size();
            session_.Form70().Check1(number - 1).Set_Value(has_file ? 1 : 0);
            loaded &= !has_file || Take_Test(options_.files[index], session_.Sheet(number));
        }
        return loaded;
    }

    [[nodiscard]] bool Make() {
        try {
            Create_Text_Report(session_);
        } catch (const Run_Time_Error& failure) {
            platform_.Note("The report cannot be made -- " + failure.Description());
            Pass_On_Boxes("kestrum-cli");
            return false;
        }
        Pass_On_Boxes("kestrum-cli");
        return true;
    }

    [[nodiscard]] bool Write(std::ostream& out) {
        const std::string page = Report_Page(session_);
        if (options_.output.empty()) {
            out << page;
            Finish(out, "report: the text cannot be written");
            return true;
        }
        try {
            Write_Whole_File(options_.output, page);
        } catch (const Run_Time_Error& failure) {
            platform_.Note("Problem - File Not Saved -- " + failure.Description());
            Pass_On_Boxes(options_.output);
            return false;
        }
        return true;
    }

private:
    using Reader = std::function<bool(std::string_view bytes)>;

    /// A file that is not named is no failure.
    bool Take(const std::string& path, std::string_view kind, const Reader& read) {
        if (path.empty()) {
            return true;
        }
        bool loaded = false;
        try {
            loaded = read(Read_Whole_File(path));
        } catch (const Run_Time_Error& failure) {
            platform_.Note(std::string(kind) + " has Not been Loaded -- " + failure.Description());
        }
        Pass_On_Boxes(path);
        return loaded;
    }

    bool Take_Test(const std::string& path, Flow_Sheet& sheet) {
        return Take(path, "Flow Data File", [&](std::string_view bytes) {
            const bool loaded = Read_Flow_Records(session_, sheet, bytes);
            sheet.Text39.Set_Text(path); // the report names it
            return loaded;
        });
    }

    void Pass_On_Boxes(const std::string& source) {
        for (const std::string& text : platform_.Texts()) {
            errors_ << One_Line(source) + ": " + One_Line(text) + "\n";
        }
        platform_.Clear();
    }

    const Report_Options& options_;
    std::ostream& errors_;
    Null_Platform platform_;
    Session session_;
};

} // namespace

int Run_Report(const Report_Options& options, const std::string& folder, std::ostream& out,
               std::ostream& errors) {
    Report_Run run(options, folder, errors);
    return run.Load() && run.Make() && run.Write(out) ? 0 : 1;
}

} // namespace kestrum::cli
