#include "cli/calc_run.h"

#include "cli/calc_output.h"
#include "cli/calc_sheet.h"
#include "cli/line_text.h"
#include "cli/standard_streams.h"

namespace kestrum::cli {

namespace {

/// The run over the files. What it writes is gathered, so that the system is asked once for many
/// lines.
class Calc_Run {
public:
    Calc_Run(const Calc_Options& options, std::ostream& out, std::ostream& errors)
        : sheet_(options.metric),
          output_(options.format, sheet_, options.to_terminal),
          spells_(options.to_terminal && options.format != Calc_Format::Json),
          out_(out),
          errors_(errors) {
        output_.Append_Head(lines_);
    }

    void Take(const std::string& file) {
        const bool loaded = sheet_.Load(file);
        all_loaded_ = all_loaded_ && loaded;
        for (const std::string& box : sheet_.Boxes()) {
            errors_ << Escaped(file) + ": " + One_Line(box) + "\n";
        }
        output_.Append_Result(lines_, file, loaded);
        constexpr std::size_t enough = 65536;
        if (lines_.size() >= enough) {
            Write_Out();
        }
    }

    void Write_Out() {
        if (spells_) {
            lines_ = Escaped(lines_, "\n");
        }
        out_ << lines_;
        Finish(out_, "calc: the figures cannot be written");
        lines_.clear();
    }

    [[nodiscard]] bool All_Loaded() const { return all_loaded_; }

private:
    Calc_Sheet sheet_;
    Calc_Output output_;
    bool spells_;
    std::ostream& out_;
    std::ostream& errors_;
    std::string lines_;
    bool all_loaded_ = true;
};

void Take_Names(Calc_Run& run, std::istream& names) {
    Line_Source lines(names, "calc: the names of the files cannot be read");
    std::string name;
    try {
        while (lines.Next(name)) {
            if (!name.empty()) {
                run.Take(name);
            }
        }
    } catch (const Stream_Error&) {
        run.Write_Out(); // the figures up to here hold
        throw;
    }
}

} // namespace

int Run_Calc(const Calc_Options& options, std::istream& names, std::ostream& out,
             std::ostream& errors) {
    Calc_Run run(options, out, errors);
    for (const std::string& file : options.files) {
        run.Take(file);
    }
    if (options.names_from_input) {
        Take_Names(run, names);
    }
    run.Write_Out();
    return run.All_Loaded() ? 0 : 1;
}

} // namespace kestrum::cli
