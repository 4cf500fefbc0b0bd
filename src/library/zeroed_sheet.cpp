#include "library/zeroed_sheet.h"

#include "base/text.h"
#include "engine/unit_conversion.h"
#include "exchange/lift_rows.h"
#include "files/started_sheets.h"
#include "sheet/flow_calculation.h"

#include <algorithm>

namespace kestrum {

namespace {

bool Is_Lift_Row(const Control& cell) {
    return cell.Index() >= zero_lift_row;
}

/// The same number as the sample's, in a text that no file writes.
std::string Marked(const std::string& sample) {
    return "   " + sample + "  ";
}

/// The words of a box as a part of one line.
void Append_Words(std::string& line, std::string_view text) {
    if (!line.empty()) {
        line += "; ";
    }
    for (const char letter : text) {
        const bool is_control = static_cast<unsigned char>(letter) < ' ';
        if (!is_control || !line.ends_with(' ')) {
            line += is_control ? ' ' : letter;
        }
    }
}

} // namespace

Zeroed_Sheet::Zeroed_Sheet(bool metric)
    : metric_(metric),
      session_(platform_, platform_, Surroundings{}),
      sheet_(Started_Sheets(session_, 1, metric)) {
    for (Control& cell : sheet_.Controls()) {
        if (cell.Entry().use == Cell_Use::Result && Is_Lift_Row(cell)) {
            results_.push_back(&cell);
        }
    }
    Empty_Lift_Rows(sheet_);
    Empty_Results();
    Mark_Header();
    // The switch of the units goes through all sheets.
    start_texts_.emplace_back(sheet_);
    start_texts_.emplace_back(session_.Main());
    for (int number = 2; metric && number <= sheet_count; ++number) {
        start_texts_.emplace_back(session_.Sheet(number));
    }
}

void Zeroed_Sheet::Mark_Header() {
    for (Control& cell : sheet_.Controls()) {
        if (cell.Entry().use != Cell_Use::Input || Is_Lift_Row(cell) || &cell == &sheet_.Text38) {
            continue;
        }
        const bool is_number = cell.Entry().filter != Key_Filter::Every_Key;
        // The pressure of the test is compared as a text when a file is read.
        const bool is_marked = is_number && &cell != &sheet_.Text108(7);
        cell.Set_Text(is_number ? (is_marked ? Marked(cell.Text()) : cell.Text()) : "");
        header_.push_back({.cell = &cell, .text = cell.Text(), .is_marked = is_marked});
    }
}

void Zeroed_Sheet::Empty_Results() {
    for (Control* const cell : results_) {
        cell->Set_Text("0");
    }
}

void Zeroed_Sheet::Start_Over() {
    for (Start_Texts& texts : start_texts_) {
        texts.Put_Back();
    }
    session_.Main().Check2.Set_Value(metric_ ? 1 : 0);
    platform_.Clear();
    unnamed_.clear();
}

void Zeroed_Sheet::Note_Unnamed() {
    for (const Header_Cell& header : header_) {
        if (header.is_marked &&
            (header.cell->Text().empty() || header.cell->Text() == header.text)) {
            unnamed_.push_back(header.cell);
        }
    }
}

void Zeroed_Sheet::Fill_Empty_Header() {
    for (const Header_Cell& header : header_) {
        if (header.cell->Text().empty() && !header.text.empty()) {
            header.cell->Set_Text(header.text);
        }
    }
}

std::optional<Test_Figures> Zeroed_Sheet::Read(const std::string& path, Test_Format format,
                                               std::string_view bytes) {
    Start_Over();
    session_.file.path = path;
    // Calculated when the header is whole and in US units: a calculation writes into inputs.
    if (!Read_Test(session_, sheet_, format, bytes, Take_Valve_Counts)) {
        return std::nullopt;
    }
    return Finished();
}

std::optional<Test_Figures> Zeroed_Sheet::Take(const Screen& other) {
    Start_Over();
    for (std::size_t at = 0; at < sheet_.Controls().size(); ++at) {
        Control& cell = sheet_.Controls()[at];
        if (cell.Entry().use == Cell_Use::Input) {
            cell.Set_Text(other.Controls()[at].Text());
        }
    }
    return Finished();
}

std::optional<Test_Figures> Zeroed_Sheet::Finished() {
    Note_Unnamed();
    Fill_Empty_Header();
    try {
        Set_Metric(session_, false);
        Empty_Results();
        Calc_Flow_Test(session_, sheet_);
    } catch (const Run_Time_Error& failure) {
        platform_.Note(failure.Description());
        return std::nullopt;
    }
    return Figures_Of(session_.numbers, sheet_, [this](const Control& field) {
        return std::ranges::find(unnamed_, &field) == unnamed_.end();
    });
}

std::string Zeroed_Sheet::Problem() const {
    std::string problem;
    for (const std::string& box : platform_.Texts()) {
        Append_Words(problem, box);
    }
    return problem;
}

} // namespace kestrum
