#include "cli/compare_output.h"

#include "base/text.h"
#include "cli/line_text.h"
#include "screens/flow_sheet.h"

#include <algorithm>
#include <array>

namespace kestrum::cli {

namespace {

constexpr int label_row = 10;
constexpr int first_heading = 11;
constexpr int last_heading = 15;

/// The columns from left to right.
std::array<const Control_Array*, 10> Columns_Of(const Compare_Screen& table) {
    return {&table.Text101, &table.Text102, &table.Text103, &table.Text104, &table.Text105,
            &table.Text106, &table.Text107, &table.Text108, &table.Text109, &table.Text110};
}

std::size_t Width_Of(const Control_Array& column) {
    std::size_t width = 0;
    for (int row = first_heading; row <= last_lift_row; ++row) {
        width = std::max(width, Length(column(row).Text()));
    }
    return width;
}

void Append_Row(std::string& out, const Compare_Screen& table, int row) {
    for (const Control_Array* const column : Columns_Of(table)) {
        const std::string& text = (*column)(row).Text();
        out.append(2 + Width_Of(*column) - Length(text), ' ');
        out += text;
    }
    out.erase(out.find_last_not_of(' ') + 1);
    out += '\n';
}

} // namespace

std::string Compare_Text(const Compare_Screen& table) {
    std::string out = table.Option3(table.Type()).Text() + "\n";
    // The labels are wider than their columns.
    out += "  From: " + table.Text102(label_row).Text() + "\n";
    out += "  To:   " + table.Text104(label_row).Text() + "\n\n";
    for (int row = first_heading; row <= last_lift_row; ++row) {
        Append_Row(out, table, row);
        if (row == last_heading) {
            out += '\n';
        }
    }
    return out;
}

std::string Compare_Csv(const Compare_Screen& table) {
    std::string out = "row";
    for (const Control_Array* const column : Columns_Of(table)) {
        out += ',';
        out += (*column)(label_row).Entry().array;
    }
    out += '\n';
    for (int row = label_row; row <= last_lift_row; ++row) {
        out += static_cast<char>('0' + row / 10);
        out += static_cast<char>('0' + row % 10);
        for (const Control_Array* const column : Columns_Of(table)) {
            out += ',';
            Append_Field(out, (*column)(row).Text());
        }
        out += '\n';
    }
    return out;
}

} // namespace kestrum::cli
