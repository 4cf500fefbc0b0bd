#pragma once

#include "cli/calc_options.h"
#include "cli/calc_sheet.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrum::cli {

/// The figures of file after file in one of the formats. Names, captions and units never change
/// between files, so they are spelled once.
class Calc_Output {
public:
    /// With `to_terminal` control characters in the names of files are spelled.
    Calc_Output(Calc_Format format, const Calc_Sheet& sheet, bool to_terminal);

    /// Adds what stands above all files.
    void Append_Head(std::string& out) const;

    /// Adds the figures of a file that the sheet has just read, or that did not load.
    void Append_Result(std::string& out, std::string_view file, bool loaded) const;

private:
    /// What stands around lift and value of a figure.
    struct Figure_Words {
        std::string before_lift;
        std::string before_value;
    };

    [[nodiscard]] Figure_Words Csv_Words(const Flow_Figure& figure) const;
    [[nodiscard]] Figure_Words Json_Words(const Flow_Figure& figure) const;
    void Append_Text(std::string& out, std::string_view file, bool loaded) const;
    void Append_Csv(std::string& out, std::string_view file) const;
    void Append_Json(std::string& out, std::string_view file, bool loaded) const;
    void Append_Json_Figures(std::string& out) const;

    Calc_Format format_;
    const Calc_Sheet& sheet_;
    bool to_terminal_;
    /// One for each figure of the sheet.
    std::vector<Figure_Words> words_;
};

} // namespace kestrum::cli
