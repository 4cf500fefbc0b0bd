#pragma once

#include <string>
#include <string_view>

namespace kestrum {

/// Goes through the lines of a file's decoded content. A line ends with CR LF or LF, in a file
/// without any LF with CR. The last one may lack its end, and character 26 ends the file.
class Line_Reader {
public:
    explicit Line_Reader(std::string_view content);

    /// Takes the next line; false at the end.
    [[nodiscard]] bool Next();

    [[nodiscard]] std::string_view Line() const { return line_; }

private:
    std::string_view rest_;
    std::string_view line_;
    char line_end_;
};

/// One line "key = value" of the system's own files. Keys are read without regard to case.
class Record {
public:
    void Take(std::string_view line);

    [[nodiscard]] std::string_view Line() const { return line_; }

    /// The first characters of the lower-case copy.
    [[nodiscard]] std::string_view Key(std::size_t length) const;
    /// What stands between a key of that length and the blank before the "=". Raises 5 for a line
    /// that is too short for that, one without "=" among them.
    [[nodiscard]] std::string_view Row_Text(std::size_t key_length = 8) const;
    /// What stands behind the "=" and its blank, in lower case.
    [[nodiscard]] std::string Lower_Value() const;
    /// The same as it was written.
    [[nodiscard]] std::string_view Value() const;

private:
    std::string_view line_;
    std::string lower_key_;  // no more than a key needs, for a line may have megabytes
    std::size_t equals_ = 0; // position of the first "=", 0 without one
};

/// Composes the records of a file and counts them in the session's count.
class Record_Writer {
public:
    explicit Record_Writer(int& records_written) : written_(records_written) { written_ = 0; }

    /// Character 26 is left out: it would end the file when that is read back.
    void Write_Line(std::string_view key, std::string_view value);

    /// A line of no key.
    void Write_Text(std::string_view line);

    [[nodiscard]] const std::string& Text() const { return text_; }

private:
    int& written_;
    std::string text_;
};

/// Counts a record in a 16-bit count, which stays at its highest number.
void Count_Record(int& records);

} // namespace kestrum
