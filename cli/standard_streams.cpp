#include "cli/standard_streams.h"

namespace kestrum::cli {

void Finish(std::ostream& out, const std::string& failure) {
    out.flush();
    if (!out) {
        throw Stream_Error(failure);
    }
}

bool Line_Source::Next(std::string& line) {
    constexpr std::size_t longest = std::size_t{16} * 1024 * 1024;
    line.clear();
    const std::istream::sentry ready(input_, true); // writes what was printed, for who waits for it
    if (!ready) {
        return false;
    }
    try {
        constexpr int end = std::istream::traits_type::eof();
        int letter = input_.rdbuf()->sbumpc();
        bool has_line = letter != end;
        for (; letter != end && letter != '\n'; letter = input_.rdbuf()->sbumpc()) {
            line += static_cast<char>(letter);
            if (line.size() > longest) {
                throw Stream_Error(failure_ + ": a line is too long");
            }
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        return has_line;
    } catch (const std::ios_base::failure&) {
        throw Stream_Error(failure_);
    }
}

} // namespace kestrum::cli
