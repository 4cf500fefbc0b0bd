#include "cli/print_run.h"

#include "application/events.h"
#include "cli/graph_session.h"
#include "core/logo_picture.h"
#include "files/company_file.h"
#include "output/compare_print.h"
#include "output/flow_sheet_print.h"
#include "platform/file_store.h"

#include <iterator>

namespace kestrum::cli {

namespace {

constexpr int sheet_number = 1;

/// Lays the documents of the files out, one behind the other.
class Print_Batch {
public:
    Print_Batch(const Print_Options& options, Painter& painter, std::ostream& errors)
        : options_(options),
          session_({.pairs = {},
                    .type = options.type,
                    .x_column = options.x_column,
                    .metric = options.metric},
                   errors, options.clock),
          paper_(Within_Margins(options.paper)) {
        session_.Its_Session().painter = &painter;
        Click(session_.Its_Session(), session_.Its_Session().Main().Option4(options.head));
    }

    [[nodiscard]] bool Take_Company() {
        if (options_.company.empty()) {
            return true;
        }
        const bool taken = Read_Company_File(session_.Its_Session(), options_.company);
        session_.Pass_On_Boxes(options_.company);
        return taken;
    }

    /// The pages come without a logo that is no picture.
    void Take_Logo() {
        if (!options_.logo.empty()) {
            session_.Take_Logo(options_.logo);
        }
    }

    [[nodiscard]] bool Lay_Out() { return options_.compares ? Compare() : All_Sheets(); }

    [[nodiscard]] Document As_Document() const {
        return {.title = options_.compares ? "Comparison" : "Flow Sheet",
                .lay_out = [this](const Paper&) { return pages_; }};
    }

private:
    bool Compare() {
        if (!session_.Load({.from = options_.files[0], .to = options_.files[1]}) ||
            !session_.Press("Command1")) {
            return false;
        }
        pages_ = Compare_Pages(session_.Its_Session(), paper_);
        return true;
    }

    bool All_Sheets() {
        bool all = true;
        for (const std::string& file : options_.files) {
            all = Add_Sheet(file) && all;
        }
        return all;
    }

    bool Add_Sheet(const std::string& file) {
        if (!session_.Load_Sheet(sheet_number, file)) {
            return false;
        }
        Flow_Sheet& sheet = session_.Its_Session().Sheet(sheet_number);
        sheet.Text39.Set_Text(file);
        Pages pages = Flow_Sheet_Pages(session_.Its_Session(), sheet, paper_);
        std::ranges::move(pages, std::back_inserter(pages_));
        return true;
    }

    const Print_Options& options_;
    Graph_Session session_;
    Paper paper_;
    Pages pages_;
};

} // namespace

int Run_Print(const Print_Options& options, const std::function<Painter&()>& painter,
              std::ostream& errors) {
    try {
        Print_Batch batch(options, painter(), errors);
        if (!batch.Take_Company()) {
            return 1;
        }
        batch.Take_Logo();
        if (!batch.Lay_Out()) {
            return 1;
        }
        Write_Whole_File(options.output, painter().Pdf_Of(batch.As_Document(), options.paper));
    } catch (const Run_Time_Error& failure) {
        errors << options.output + ": the pages have not been printed -- " + failure.Description() +
                      "\n";
        return 1;
    }
    return 0;
}

} // namespace kestrum::cli
