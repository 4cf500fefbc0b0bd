#include "core/table_text.h"

#include "base/text.h"

#include <algorithm>
#include <optional>

namespace kestrum {

namespace {

constexpr char quote = '"';
constexpr std::string_view cell_ends = "\t\r\n";

/// Takes cells off the front of a text.
class Table_Reader {
public:
    explicit Table_Reader(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool At_End() const { return rest_.empty(); }

    [[nodiscard]] std::vector<std::string> Next_Row() {
        std::vector<std::string> row{Next_Cell()};
        while (rest_.starts_with('\t')) {
            rest_.remove_prefix(1);
            row.push_back(Next_Cell());
        }
        if (!rest_.empty()) {
            rest_.remove_prefix(rest_.starts_with(cr_lf) ? cr_lf.size() : 1);
        }
        return row;
    }

private:
    [[nodiscard]] std::string Next_Cell() {
        if (std::optional<std::string> cell = Quoted_Cell()) {
            return *std::move(cell);
        }
        const std::size_t length = std::min(rest_.find_first_of(cell_ends), rest_.size());
        std::string cell(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return cell;
    }

    /// Nothing where the quotes do not hold a whole cell: such a quote is a letter of the text, as
    /// the mark of inches is.
    [[nodiscard]] std::optional<std::string> Quoted_Cell() {
        if (!rest_.starts_with(quote)) {
            return std::nullopt;
        }
        std::string cell;
        for (std::size_t offset = 1; offset < rest_.size(); ++offset) {
            if (rest_[offset] != quote) {
                cell += rest_[offset];
            } else if (rest_.substr(offset + 1).starts_with(quote)) {
                cell += rest_[offset++];
            } else if (offset + 1 == rest_.size() ||
                       cell_ends.find(rest_[offset + 1]) != std::string_view::npos) {
                rest_.remove_prefix(offset + 1);
                return cell;
            } else {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    std::string_view rest_;
};

bool Is_Empty_Line(const std::vector<std::string>& row) {
    return row.size() == 1 && row.front().empty();
}

void Append_Cell(std::string& text, const std::string& cell) {
    const bool needs_quotes =
        cell.starts_with(quote) || cell.find_first_of(cell_ends) != std::string::npos;
    if (!needs_quotes) {
        text += cell;
        return;
    }
    text += quote;
    for (const char letter : cell) {
        text.append(letter == quote ? 2U : 1U, letter);
    }
    text += quote;
}

} // namespace

Table_Rows Rows_Of_Table(std::string_view text) {
    Table_Rows rows;
    for (Table_Reader reader(text); !reader.At_End();) {
        rows.push_back(reader.Next_Row());
    }
    while (!rows.empty() && Is_Empty_Line(rows.back())) {
        rows.pop_back();
    }
    if (std::ranges::any_of(rows, [](const auto& row) { return row.size() > 1; })) {
        for (auto& row : rows) {
            if (Is_Empty_Line(row)) {
                row.clear();
            }
        }
    }
    return rows;
}

std::string Table_Of_Rows(const Table_Rows& rows) {
    std::string text;
    for (const auto& row : rows) {
        bool is_first = true;
        for (const std::string& cell : row) {
            text += is_first ? "" : "\t";
            is_first = false;
            Append_Cell(text, cell);
        }
        text += cr_lf;
    }
    return text;
}

} // namespace kestrum
