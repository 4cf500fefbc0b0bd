#include "platform/program_start.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kestrum {

std::vector<std::string> Program_Arguments(int count, const char* const* values) {
    return {values + (count > 0 ? 1 : 0), values + count};
}

void Prepare_Standard_Streams() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(number, F_GETFD) == -1 && errno == EBADF) {
            // Opened the wrong way round, so that its use fails. It gets the lowest free number.
            static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
        }
    }
}

void Borrow_Terminal() {
    // It has the streams of its caller.
}

bool Prints_To_Terminal() {
    return ::isatty(STDOUT_FILENO) == 1;
}

} // namespace kestrum
