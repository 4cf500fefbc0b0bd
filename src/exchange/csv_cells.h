#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// What is wrong with a CSV file, and where: line and cell of the line, both from 1.
class Csv_Fault : public std::runtime_error {
public:
    Csv_Fault(int line, std::size_t column, const std::string& reason)
        : std::runtime_error(reason), line_(line), column_(column) {}

    [[nodiscard]] int Line() const noexcept { return line_; }

    [[nodiscard]] std::size_t Column() const noexcept { return column_; }

private:
    int line_;
    std::size_t column_;
};

/// Goes through the records of a CSV file's decoded content. A cell may stand between quotes, where
/// a quote is written twice and the delimiter and line ends are text. Empty lines are passed over.
class Csv_Reader {
public:
    /// The delimiter is what the first line shows: a tab, else a semicolon, else a comma.
    explicit Csv_Reader(std::string_view content);

    /// Takes the next record; false at the end. Raises `Csv_Fault` for quotes that do not match.
    [[nodiscard]] bool Next();

    /// The cells without the blanks around them.
    [[nodiscard]] const std::vector<std::string>& Cells() const { return cells_; }

    /// The line in which the record begins; behind the last one, the last line of the file.
    [[nodiscard]] int Line() const { return line_; }

    [[nodiscard]] char Delimiter() const { return delimiter_; }

private:
    [[nodiscard]] bool At_End() const { return place_ >= content_.size(); }

    [[nodiscard]] bool At_Cell_End() const;
    void Pass_Line_End();
    [[nodiscard]] std::string Next_Cell();
    [[nodiscard]] std::string Quoted_Cell();
    void Pass_Blanks();

    std::string_view content_;
    char delimiter_;
    std::size_t place_ = 0;
    int next_line_ = 1;
    int line_ = 1;
    std::vector<std::string> cells_;
};

/// Adds a line of cells, between quotes where they need them, with CR LF at its end.
void Append_Csv_Line(std::string& text, const std::vector<std::string>& cells);

} // namespace kestrum
