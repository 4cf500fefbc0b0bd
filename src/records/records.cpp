#include "records/records.h"

#include "base/run_time_error.h"
#include "base/text.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace kestrum {

namespace {

constexpr char end_of_file = 26;
constexpr std::size_t longest_key = 32;

} // namespace

Line_Reader::Line_Reader(std::string_view content) {
    rest_ = content.substr(0, content.find(end_of_file));
    line_end_ = rest_.find('\n') == std::string_view::npos ? '\r' : '\n';
}

bool Line_Reader::Next() {
    if (rest_.empty()) {
        return false;
    }
    const std::size_t end = rest_.find(line_end_);
    line_ = rest_.substr(0, end);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
    if (line_end_ == '\n' && line_.ends_with('\r')) {
        line_.remove_suffix(1);
    }
    return true;
}

void Record::Take(std::string_view line) {
    line_ = line;
    lower_key_ = Lower_Copy(Left(line, longest_key));
    equals_ = Position_Of(line, '=');
}

std::string_view Record::Key(std::size_t length) const {
    return Left(lower_key_, length);
}

std::string_view Record::Row_Text(std::size_t key_length) const {
    return Middle(line_, key_length + 1,
                  static_cast<long>(equals_) - static_cast<long>(key_length) - 2);
}

std::string Record::Lower_Value() const {
    return Lower_Copy(Value());
}

std::string_view Record::Value() const {
    return Middle(line_, equals_ + 2);
}

void Record_Writer::Write_Line(std::string_view key, std::string_view value) {
    text_.append(key).append(" = ");
    Write_Text(value);
}

void Record_Writer::Write_Text(std::string_view line) {
    std::ranges::remove_copy(line, std::back_inserter(text_), end_of_file);
    text_.append(cr_lf);
    Count_Record(written_);
}

void Count_Record(int& records) {
    if (records < std::numeric_limits<short>::max()) {
        ++records;
    }
}

} // namespace kestrum
