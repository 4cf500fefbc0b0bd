#include "output/flow_sheet_print.h"

#include "base/text.h"
#include "output/document_printing.h"
#include "output/print_head.h"
#include "records/named_files.h"
#include "sheet/flow_calculation.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kestrum {

namespace {

constexpr int behind_last_column = 12;
constexpr double label_size = 10;
constexpr double block_gap = 100;

void Label(Print_Page& page, std::string_view text, int column, int behind) {
    page.Print_Label_Font();
    page.Cell(text, column, behind);
}

void Label(Print_Page& page, std::string_view text, int column) {
    Label(page, text, column, column + 1);
}

void Value(Print_Page& page, const Control& field, int column) {
    page.Print_Value_Font();
    page.Cell(field.Text(), column);
}

// The comments and the dimensions.

void Print_Comments(Print_Page& page, const std::string& text) {
    page.Set_Font(value_size, false);
    page.y += block_gap;
    std::string_view rest = text;
    bool more = true;
    while (more) {
        const std::size_t end = rest.find(cr_lf);
        more = end != std::string_view::npos;
        page.Start_Row(value_size);
        page.x = page.Tab(1);
        page.Print(rest.substr(0, end));
        rest = more ? rest.substr(end + cr_lf.size()) : std::string_view();
    }
    Print_Block_Rule(page);
}

/// A long part number is set smaller, and runs on where even that is too wide.
void Print_Part_Number(Print_Page& page, const std::string& text) {
    constexpr int column = 5;
    const double room = page.Tab(behind_last_column) - page.Tab(column);
    page.Print_Value_Font();
    for (const double smaller : {10, 9}) {
        if (page.Measure(text) >= room) {
            page.size = smaller;
        }
    }
    page.Print_Aligned(text, page.Tab(column), page.Tab(column + 1), Text_Anchor::Centre,
                       page.Tab(behind_last_column));
}

void Print_Test_Row(Print_Page& page, const Flow_Sheet& sheet) {
    page.Start_Row(value_size);
    Label(page, "Test Bore Diameter", 1, 3);
    Value(page, sheet.Text104(0), 3);
    Label(page, sheet.Text101(0).Text(), 4);
    Print_Part_Number(page, sheet.Text102(0).Text());
}

void Print_Dimension_Labels(Print_Page& page) {
    static constexpr std::array<std::string_view, 10> labels{
        "Port Volume", "Port Area", "Valve Dia",  "Stem Dia",    "Throat Dia",
        "Throat Area", "# Valves",  "Seat Angle", "Port Length", "Port Area"};
    page.Start_Row(label_size);
    int column = 2;
    for (const std::string_view label : labels) {
        Label(page, label, column);
        ++column;
    }
}

void Print_Dimensions(Print_Page& page, std::string_view side,
                      std::initializer_list<const Control*> fields) {
    page.Start_Row(value_size);
    Label(page, side, 1);
    int column = 2;
    for (const Control* const field : fields) {
        Value(page, *field, column);
        ++column;
    }
}

void Print_Ratios(Print_Page& page, const Flow_Sheet& sheet) {
    page.Start_Row(value_size);
    Label(page, "Exhaust Pipe Used?", 1, 3);
    Value(page, sheet.Text102(10), 3);
    Label(page, "Throat / Valve Ratio", 4, 6);
    Label(page, "Intake", 6);
    Value(page, sheet.Text113(7), 7);
    Label(page, "Exhaust", 8);
    Value(page, sheet.Text115(7), 9);
}

void Print_All_Dimensions(Print_Page& page, const Flow_Sheet& sheet) {
    const auto& in = sheet.Text102;
    const auto& out = sheet.Text104;
    Print_Dimension_Labels(page);
    Print_Dimensions(page, "Intake",
                     {&in(1), &in(2), &in(3), &in(4), &in(6), &in(7), &sheet.Text106(6),
                      &sheet.Text202(4), &in(8), &sheet.Text110(2)});
    Print_Dimensions(page, "Exhaust",
                     {&out(1), &out(2), &out(3), &out(4), &out(6), &out(7), &sheet.Text108(6),
                      &sheet.Text204(4), &out(8), &sheet.Text110(3)});
    Print_Ratios(page, sheet);
}

void Print_Note(Print_Page& page) {
    page.Set_Font(label_size, false);
    page.y += block_gap;
    page.Start_Row(label_size);
    page.Print_Aligned("NOTE: Mean Port Velocity should be in the 300-320 fps range around max "
                       "valve lift",
                       page.Tab(1), page.Tab(full_width), Text_Anchor::Left);
    page.y += block_gap;
}

// The tables of lift rows.

/// A text that is no number is not zero: the headings print.
bool Is_Zero(const Numeric_Text& numbers, const Control& field) {
    try {
        return numbers(field) == 0;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

/// The first column holds the lifts, the third one the flows.
void Print_Table(Print_Page& page, std::initializer_list<const Control_Array*> columns) {
    constexpr int first_lift_that_ends = zero_lift_row + 1; // the row of lift 0 is one of them
    const Numeric_Text& numbers = page.Its_Session().numbers;
    const Control_Array& lifts = *columns.begin()[0];
    const Control_Array& flows = *columns.begin()[2];
    for (int row = first_heading_row; row <= last_lift_row; ++row) {
        if ((row >= first_lift_that_ends && Is_Zero(numbers, lifts(row))) ||
            Is_Zero(numbers, flows(row))) {
            continue;
        }
        const bool heading = row < zero_lift_row;
        page.Set_Font(heading ? label_size : value_size, heading);
        page.Start_Row(page.size);
        int cell = 1;
        for (const Control_Array* const column : columns) {
            page.Return_To_Row();
            page.Cell((*column)(row).Text(), cell);
            ++cell;
        }
    }
}

void Print_Intake(Print_Page& page, const Flow_Sheet& sheet) {
    constexpr int sums = 11;
    Print_Table(page, {&sheet.Text101, &sheet.Text208, &sheet.Text102, &sheet.Text109,
                       &sheet.Text111, &sheet.Text114, &sheet.Text113, &sheet.Text207});
    page.Start_Row(value_size);
    Label(page, "Average", 2);
    Value(page, sheet.Text102(sums), 3);
    Label(page, sheet.Text105(sums).Text(), 4);
    Value(page, sheet.Text106(sums), 5);
    Label(page, "Average", 6);
    Value(page, sheet.Text113(sums + 1), 7);
}

void Print_Exhaust(Print_Page& page, const Flow_Sheet& sheet) {
    constexpr int sums = 11;
    Print_Table(page, {&sheet.Text101, &sheet.Text209, &sheet.Text103, &sheet.Text110,
                       &sheet.Text112, &sheet.Text115});
    page.Start_Row(value_size);
    Label(page, sheet.Text101(sums).Text(), 2);
    Value(page, sheet.Text103(sums), 3);
    Label(page, sheet.Text105(sums).Text(), 4);
    Value(page, sheet.Text107(sums), 5);
}

/// The sheet's title line, broken anywhere. The search for a break goes in steps of two
/// characters, as it always has.
void Print_Title_Line(Print_Page& page, const std::string& text) {
    constexpr double gap = 50;
    const double room = page.Tab(full_width) - page.Tab(1);
    page.Set_Font(label_size, false);
    page.y += gap;
    std::string_view rest = text;
    while (!rest.empty()) {
        auto count = static_cast<long>(Length(rest));
        while (count > 1 && page.Measure(Left(rest, static_cast<std::size_t>(count))) >= room) {
            count = std::max(count - 2, 1L); // at least one, or there would be no end
        }
        const std::string_view line = Left(rest, static_cast<std::size_t>(count));
        page.Start_Row(label_size);
        page.x = page.Tab(1);
        page.Print(line);
        rest.remove_prefix(line.size());
    }
}

} // namespace

Pages Flow_Sheet_Pages(Session& session, const Flow_Sheet& sheet, const Paper& paper) {
    constexpr double below_dimensions = 50;
    Print_Page page(session, paper);
    Print_Page_Head(page);
    if (Length(Without_Outer_Blanks(sheet.Text38.Text())) > 1) {
        Print_Comments(page, sheet.Text38.Text());
    }
    page.Set_Font(label_size, false);
    page.y += block_gap;
    Print_Test_Row(page, sheet);
    Print_All_Dimensions(page, sheet);
    page.Rule(below_dimensions);
    Print_Note(page);
    Print_Intake(page, sheet);
    page.y += block_gap;
    Print_Exhaust(page, sheet);
    if (Length(sheet.Text39.Text()) > 1) {
        Print_Title_Line(page, sheet.Text39.Text());
    }
    if (Has_Logo_At_Foot(page)) {
        Print_Logo_Foot(page);
    }
    return page.Take_Pages();
}

void Print_Flow_Sheet(Session& session, Flow_Sheet& sheet) {
    Calc_Flow_Test(session, sheet);
    Print_Document(
        session,
        {.title = "Flow Sheet",
         .lay_out = [&](const Paper& paper) { return Flow_Sheet_Pages(session, sheet, paper); },
         .proposal = Proposal_For(session, sheet, ".pdf")});
}

} // namespace kestrum
