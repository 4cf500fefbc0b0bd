#include "output/compare_print.h"

#include "base/text.h"
#include "graph/compare_table.h"
#include "output/document_printing.h"
#include "output/graph_saving.h"
#include "output/print_head.h"

#include <algorithm>
#include <array>

namespace kestrum {

namespace {

constexpr int name_row = 10;
constexpr int first_value_row = 16;
constexpr int last_row = 30;
constexpr double heading_size = 10;

/// The name of the From test as it is printed.
struct Fitted_Name {
    std::string_view text;
    int column;
    int behind;
    double size = heading_size;
    /// Where the name of the To test goes.
    int to_column = 4;
    int to_behind = 5;
};

/// Without its first five characters ("Test "), in smaller letters if need be.
Fitted_Name Shortened(Print_Page& page, std::string_view name) {
    constexpr std::size_t dropped = 5;
    const double room = page.Tab(5) - page.Tab(1);
    const std::string_view rest = Middle(name, dropped + 1);
    for (const double size : {heading_size, 9.0, 8.0}) {
        page.size = size;
        if (page.Measure(rest) <= room) {
            return {.text = rest,
                    .column = 1,
                    .behind = 5,
                    .size = size,
                    .to_column = 5,
                    .to_behind = 6};
        }
    }
    // Nothing helps: the whole name, and the other one lies over its end.
    return {.text = name, .column = 1, .behind = 5, .to_column = 2, .to_behind = 4};
}

/// A long name takes the room of its neighbours.
Fitted_Name Fitted(Print_Page& page, std::string_view name) {
    const double width = page.Measure(name);
    if (width <= page.Tab(4) - page.Tab(2)) {
        return {.text = name, .column = 2, .behind = 4};
    }
    if (width <= page.Tab(4) - page.Tab(1)) {
        return {.text = name, .column = 1, .behind = 4};
    }
    if (width <= page.Tab(5) - page.Tab(1)) {
        return {.text = name, .column = 1, .behind = 5, .to_column = 5, .to_behind = 6};
    }
    return Shortened(page, name);
}

/// Where the next text of the names' row stands, up to which the To name may run on paper.
double Room_To(const Print_Page& page, const Compare_Screen& table, int column) {
    const std::array behind{&table.Text105, &table.Text106, &table.Text107,
                            &table.Text108, &table.Text109, &table.Text110};
    constexpr int first = 5;
    for (int cell = std::max(column + 1, first);; ++cell) {
        const auto index = static_cast<std::size_t>(cell - first);
        if (index >= behind.size() || !(*behind[index])(name_row).Text().empty()) {
            return page.Tab(cell);
        }
    }
}

void Print_Row(Print_Page& page, const Compare_Screen& table, int row) {
    const std::array columns{&table.Text101, &table.Text102, &table.Text103, &table.Text104,
                             &table.Text105, &table.Text106, &table.Text107, &table.Text108,
                             &table.Text109, &table.Text110};
    const bool heading = row < first_value_row;
    page.Set_Font(heading ? heading_size : value_size, heading);
    page.Start_Row(page.size);
    Fitted_Name name{};
    int cell = 1;
    for (const Control_Array* const column : columns) {
        const std::string& text = (*column)(row).Text();
        page.Return_To_Row();
        if (row == name_row && cell == 2) {
            name = Fitted(page, text);
            page.size = name.size;
            page.Cell(name.text, name.column, name.behind);
            page.size = heading_size;
        } else if (row == name_row && cell == 4) {
            page.Cell(text, name.to_column, name.to_behind, Room_To(page, table, name.to_column));
        } else {
            page.Cell(text, cell);
        }
        ++cell;
    }
}

} // namespace

Pages Compare_Pages(Session& session, const Paper& paper) {
    constexpr double gap = 100;
    const Compare_Screen& table = session.Form50();
    Print_Page page(session, paper);
    Print_Page_Head(page);
    page.y += gap;
    for (int row = name_row; row <= last_row; ++row) {
        Print_Row(page, table, row);
    }
    if (Has_Logo_At_Foot(page)) {
        Print_Logo_Foot(page);
        Print_Logo_Foot(page); // twice, as ever; the second picture covers the first
    }
    return page.Take_Pages();
}

void Print_Compare(Session& session) {
    Fill_Compare_Table(session);
    Print_Document(
        session,
        {.title = "Comparison",
         .lay_out = [&session](const Paper& paper) { return Compare_Pages(session, paper); },
         .proposal = Proposal_For_Compared(session, ".pdf")});
}

} // namespace kestrum
