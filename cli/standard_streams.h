#pragma once

#include <istream>
#include <ostream>
#include <stdexcept>
#include <string>

namespace kestrum::cli {

/// Input that cannot be read or output that cannot be written; the program ends with status 2.
class Stream_Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Hands all that was printed to the system. Raises `Stream_Error` with the text when any of it
/// could not be written.
void Finish(std::ostream& out, const std::string& failure);

/// The lines of an input of any length.
class Line_Source {
public:
    /// `failure` says that the input cannot be read.
    Line_Source(std::istream& input, std::string failure)
        : input_(input), failure_(std::move(failure)) {}

    /// Takes the next line, without its end and one carriage return before that; false behind the
    /// last one. Raises `Stream_Error` when reading fails and for a line of over 16 megabytes.
    [[nodiscard]] bool Next(std::string& line);

private:
    std::istream& input_;
    std::string failure_;
};

} // namespace kestrum::cli
