#include "cli/calc_tables.h"

#include "base/text.h"

#include <algorithm>

namespace kestrum::cli {

namespace {

using Cells = std::vector<std::string>;

void Append_Left(std::string& out, std::string_view text, std::size_t width) {
    out += text;
    out.append(width - std::min(width, Length(text)), ' ');
}

void Append_Right(std::string& out, std::string_view text, std::size_t width) {
    out.append(width - std::min(width, Length(text)), ' ');
    out += text;
}

void End_Line(std::string& out) {
    out.erase(out.find_last_not_of(' ') + 1);
    out += '\n';
}

void Append_Header_Block(std::string& out, const std::vector<Flow_Figure>& figures) {
    std::size_t name_width = 0;
    std::size_t text_width = 0;
    for (const Flow_Figure& figure : figures) {
        if (figure.lift == nullptr) {
            name_width = std::max(name_width, Length(figure.name));
            text_width = std::max(text_width, Length(figure.cell->Text()));
        }
    }
    for (const Flow_Figure& figure : figures) {
        if (figure.lift != nullptr) {
            continue;
        }
        out += "  ";
        Append_Left(out, figure.name, name_width + 2);
        Append_Right(out, figure.cell->Text(), text_width);
        out += "  ";
        out += figure.unit;
        End_Line(out);
    }
}

/// One column of a table: the lines of its heading, its unit, then a text for each lift row.
Cells Column_Of(const std::vector<Flow_Figure>& figures, const Flow_Figure& top) {
    const std::string_view array = top.cell->Entry().array;
    Cells cells;
    for (int row = first_heading_row; row <= last_heading_row; ++row) {
        cells.push_back(top.cell->Owner().Array(array)(row).Text());
    }
    cells.emplace_back(top.unit);
    for (const Flow_Figure& figure : figures) {
        if (figure.lift != nullptr && figure.cell->Entry().array == array) {
            cells.push_back(figure.cell->Text());
        }
    }
    return cells;
}

std::size_t Width_Of(const Cells& column) {
    std::size_t width = 0;
    for (const std::string& cell : column) {
        width = std::max(width, Length(cell));
    }
    return width;
}

void Append_Table(std::string& out, const std::vector<Cells>& columns) {
    out += '\n';
    for (std::size_t line = 0; line < columns.front().size(); ++line) {
        for (const Cells& column : columns) {
            out += "  ";
            Append_Right(out, column[line], Width_Of(column));
        }
        End_Line(out);
    }
}

} // namespace

void Append_Tables(std::string& out, const std::vector<Flow_Figure>& figures) {
    constexpr std::string_view lifts = "Text108";
    const auto is_of_lifts = [lifts](const Flow_Figure& figure) {
        return figure.lift != nullptr && figure.cell->Entry().array == lifts;
    };
    const Cells lift_column = Column_Of(figures, *std::ranges::find_if(figures, is_of_lifts));
    std::vector<Cells> page_1{lift_column};
    std::vector<Cells> page_2{lift_column};
    for (const Flow_Figure& figure : figures) {
        if (figure.lift != nullptr && figure.cell->Index() == zero_lift_row &&
            !is_of_lifts(figure)) {
            (figure.cell->Entry().parent.empty() ? page_1 : page_2)
                .push_back(Column_Of(figures, figure));
        }
    }
    Append_Header_Block(out, figures);
    Append_Table(out, page_1);
    Append_Table(out, page_2);
    out += '\n';
}

} // namespace kestrum::cli
