#include "cli/standard_streams.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kestrum::cli {

void Hold_Closed_Streams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(number, F_GETFD) == -1 && errno == EBADF) {
            // Opened the wrong way round, so that its use fails. It gets the lowest free number.
            static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
        }
    }
}

bool Prints_To_Terminal() {
    return ::isatty(STDOUT_FILENO) == 1;
}

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
