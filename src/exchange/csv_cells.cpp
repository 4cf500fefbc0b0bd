#include "exchange/csv_cells.h"

#include "base/text.h"

namespace kestrum {

namespace {

constexpr char quote = '"';
constexpr std::string_view line_ends = "\r\n";
constexpr std::string_view blank_marks = " \r\n";

/// What of the content is read: a character 26 ends it.
std::string_view Readable(std::string_view content) {
    constexpr char end_of_file = 26;
    return content.substr(0, content.find(end_of_file));
}

/// Marks between quotes are text.
char Delimiter_Of(std::string_view content) {
    const std::size_t first = content.find_first_not_of(blank_marks);
    bool has_semicolon = false;
    bool quoted = false;
    for (std::size_t index = first; index < content.size(); ++index) {
        const char mark = content[index];
        if (mark == quote) {
            quoted = !quoted;
        } else if (!quoted && line_ends.find(mark) != std::string_view::npos) {
            break;
        } else if (!quoted && mark == '\t') {
            return mark;
        } else if (!quoted && mark == ';') {
            has_semicolon = true;
        }
    }
    return has_semicolon ? ';' : ',';
}

} // namespace

Csv_Reader::Csv_Reader(std::string_view content)
    : content_(Readable(content)), delimiter_(Delimiter_Of(content_)) {}

bool Csv_Reader::Next() {
    do {
        if (At_End()) {
            return false;
        }
        cells_.clear();
        line_ = next_line_;
        cells_.push_back(Next_Cell());
        while (!At_End() && content_[place_] == delimiter_) {
            ++place_;
            cells_.push_back(Next_Cell());
        }
        Pass_Line_End();
    } while (cells_.size() == 1 && cells_.front().empty());
    return true;
}

bool Csv_Reader::At_Cell_End() const {
    return At_End() || content_[place_] == delimiter_ ||
           line_ends.find(content_[place_]) != std::string_view::npos;
}

void Csv_Reader::Pass_Line_End() {
    if (At_End()) {
        return;
    }
    place_ += content_.substr(place_).starts_with(cr_lf) ? cr_lf.size() : 1U;
    ++next_line_;
}

void Csv_Reader::Pass_Blanks() {
    while (!At_End() && content_[place_] == ' ') {
        ++place_;
    }
}

std::string Csv_Reader::Next_Cell() {
    Pass_Blanks();
    if (!At_End() && content_[place_] == quote) {
        return Quoted_Cell();
    }
    const std::size_t start = place_;
    while (!At_Cell_End()) {
        ++place_;
    }
    return std::string(Without_Outer_Blanks(content_.substr(start, place_ - start)));
}

std::string Csv_Reader::Quoted_Cell() {
    const int first_line = next_line_;
    const auto refuse = [&](const char* reason) {
        throw Csv_Fault(first_line, cells_.size() + 1, reason);
    };
    std::string cell;
    for (++place_;; ++place_) {
        if (At_End()) {
            refuse("the closing quote is missing");
        }
        const char mark = content_[place_];
        const bool quote_follows = content_.substr(place_).starts_with("\"\"");
        if (mark == quote && !quote_follows) {
            break;
        }
        place_ += quote_follows ? 1U : 0U;
        next_line_ += mark == '\n' ? 1 : 0;
        cell += mark;
    }
    ++place_;
    Pass_Blanks();
    if (!At_Cell_End()) {
        refuse("something stands behind the closing quote");
    }
    return std::string(Without_Outer_Blanks(cell));
}

void Append_Csv_Line(std::string& text, const std::vector<std::string>& cells) {
    bool is_first = true;
    for (const std::string& cell : cells) {
        text += is_first ? "" : ",";
        is_first = false;
        if (cell.find_first_of(",\"\r\n") == std::string::npos) {
            text += cell;
            continue;
        }
        text += quote;
        for (const char mark : cell) {
            text.append(mark == quote ? 2U : 1U, mark);
        }
        text += quote;
    }
    text += cr_lf;
}

} // namespace kestrum
