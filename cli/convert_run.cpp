#include "cli/convert_run.h"

#include "base/run_time_error.h"
#include "cli/convert_sheet.h"
#include "cli/line_text.h"
#include "cli/standard_streams.h"
#include "platform/file_path.h"
#include "platform/file_store.h"
#include "platform/new_file.h"

#include <filesystem>
#include <optional>
#include <set>

namespace kestrum::cli {

namespace {

namespace fs = std::filesystem;

/// Names of the files, first those of the call, then those of standard input.
class File_Names {
public:
    File_Names(const Convert_Options& options, std::istream& input)
        : options_(options), lines_(input, "convert: the names on standard input cannot be read") {}

    [[nodiscard]] std::optional<std::string> Next() {
        if (at_ < options_.files.size()) {
            return options_.files[at_++];
        }
        std::string name;
        while (options_.names_from_input && lines_.Next(name)) {
            if (!name.empty()) {
                return name;
            }
        }
        return std::nullopt;
    }

private:
    const Convert_Options& options_;
    Line_Source lines_;
    std::size_t at_ = 0;
};

class Convert_Run {
public:
    Convert_Run(const Convert_Options& options, std::ostream& errors)
        : options_(options), sheet_(options.metric), errors_(errors) {}

    void Take(const std::string& file) {
        sheet_.Start_Over();
        const bool converted = Convert(file);
        any_converted_ = any_converted_ || converted;
        all_converted_ = all_converted_ && converted;
        std::string lines;
        for (const std::string& box : sheet_.Boxes()) {
            lines += One_Line(file) + ": " + One_Line(box) + "\n";
        }
        errors_ << lines;
    }

    /// Once for all files: to wait for the disk takes longer than the work.
    void Flush() {
        if (!any_converted_) {
            return;
        }
        const fs::path output = File_Path(options_.output);
        try {
            Flush_Disk_Of(Text_Of(options_.into_folder ? output : output.parent_path()));
        } catch (const Run_Time_Error& failure) {
            errors_ << "convert: the disk has not taken all files -- " + failure.Description() +
                           "\n";
            all_converted_ = false;
        }
    }

    [[nodiscard]] bool All_Converted() const { return all_converted_; }

private:
    bool Convert(const std::string& file) {
        const std::string target = Target_Of(file);
        if (!targets_.insert(target).second) {
            sheet_.Note("another file of this call has the name '" + target + "' already");
            return false;
        }
        if (!options_.force && File_Exists(target)) {
            sheet_.Note("'" + target + "' is there already: use --force to replace it");
            return false;
        }
        const auto format = options_.from ? options_.from : Format_Of_Ending(file);
        if (!format) {
            sheet_.Note("the format is not known by the ending: use --from");
            return false;
        }
        return sheet_.Load(file, *format) && sheet_.Save(target, options_);
    }

    [[nodiscard]] std::string Target_Of(const std::string& file) const {
        if (!options_.into_folder) {
            return options_.output;
        }
        const std::string name = Text_Of(File_Path(file).stem());
        return Join_Path(options_.output, name + "." + std::string(Ending_Of_Format(options_.to)));
    }

    const Convert_Options& options_;
    Convert_Sheet sheet_;
    std::ostream& errors_;
    std::set<std::string> targets_;
    bool any_converted_ = false;
    bool all_converted_ = true;
};

} // namespace

int Run_Convert(const Convert_Options& options, std::istream& names, std::ostream& errors) {
    File_Names files(options, names);
    std::optional<std::string> file = files.Next();
    std::optional<std::string> next = files.Next();
    if (next && !options.into_folder) {
        throw Several_Files_Refused(options.output);
    }
    Convert_Run run(options, errors);
    for (; file; file = std::move(next), next = files.Next()) {
        run.Take(*file);
    }
    run.Flush();
    errors.flush();
    return run.All_Converted() ? 0 : 1;
}

} // namespace kestrum::cli
