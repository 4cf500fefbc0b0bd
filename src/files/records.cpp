#include "files/records.h"

#include "core/text.h"
#include "platform/run_time_error.h"

#include <limits>

namespace kestrum {

Line_Reader::Line_Reader(std::string_view content) {
    constexpr char end_of_file = 26;
    rest_ = content.substr(0, content.find(end_of_file));
}

bool Line_Reader::Next() {
    if (rest_.empty()) {
        return false;
    }
    const std::size_t end = rest_.find('\n');
    line_ = rest_.substr(0, end);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
    if (line_.ends_with('\r')) {
        line_.remove_suffix(1);
    }
    return true;
}

void Record::Take(std::string_view line) {
    line_ = line;
    lower_ = Lower_Copy(line);
    equals_ = Position_Of(lower_, '=');
}

std::string_view Record::Key(std::size_t length) const {
    return Left(lower_, length);
}

std::string_view Record::Row_Text() const {
    constexpr std::size_t behind_key = 9;
    return Middle(lower_, behind_key, static_cast<long>(equals_) - 10);
}

std::string_view Record::Lower_Value() const {
    return Middle(lower_, equals_ + 2);
}

std::string_view Record::Value() const {
    return Middle(line_, equals_ + 2);
}

void Record_Writer::Write_Line(std::string_view key, std::string_view value) {
    text_.append(key).append(" = ").append(value).append(cr_lf);
    Count_Record(written_);
}

void Count_Record(int& records) {
    if (records == std::numeric_limits<short>::max()) {
        Fail(error::overflow);
    }
    ++records;
}

} // namespace kestrum
