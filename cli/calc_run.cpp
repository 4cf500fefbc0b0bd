#include "cli/calc_run.h"

#include "cli/calc_output.h"
#include "cli/calc_sheet.h"
#include "cli/line_text.h"
#include "cli/script_error.h"

namespace kestrum::cli {

namespace {

/// The run over the files. What it writes is gathered, so that the system is asked once for many
/// lines.
class Calc_Run {
public:
    Calc_Run(const Calc_Options& options, std::ostream& out, std::ostream& errors)
        : format_(options.format), sheet_(options.metric), out_(out), errors_(errors) {
        Append_Head(lines_, format_);
    }

    void Take(const std::string& file) {
        const bool loaded = sheet_.Load(file);
        all_loaded_ = all_loaded_ && loaded;
        for (const std::string& box : sheet_.Boxes()) {
            errors_ << One_Line(file) + ": " + One_Line(box) + "\n";
        }
        Append_Result(lines_, format_, {file, loaded, sheet_});
        constexpr std::size_t enough = 65536;
        if (lines_.size() >= enough) {
            Write_Out();
        }
    }

    void Write_Out() {
        out_.write(lines_.data(), static_cast<std::streamsize>(lines_.size())).flush();
        if (!out_) {
            throw Script_Error("calc: the figures cannot be written");
        }
        lines_.clear();
    }

    [[nodiscard]] bool All_Loaded() const { return all_loaded_; }

private:
    Calc_Format format_;
    Calc_Sheet sheet_;
    std::ostream& out_;
    std::ostream& errors_;
    std::string lines_;
    bool all_loaded_ = true;
};

} // namespace

int Run_Calc(const Calc_Options& options, std::istream& names, std::ostream& out,
             std::ostream& errors) {
    Calc_Run run(options, out, errors);
    for (const std::string& file : options.files) {
        run.Take(file);
    }
    std::string name;
    while (options.names_from_input && std::getline(names, name)) {
        if (name.ends_with('\r')) {
            name.pop_back();
        }
        if (!name.empty()) {
            run.Take(name);
        }
    }
    run.Write_Out();
    return run.All_Loaded() ? 0 : 1;
}

} // namespace kestrum::cli
