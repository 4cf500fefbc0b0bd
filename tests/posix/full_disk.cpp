#include "tests/full_disk.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrum {

bool Holds_On_Full_Disk(std::uint64_t bytes, const std::function<bool()>& routine) {
    const pid_t child = ::fork();
    if (child == 0) {
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(routine() ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return status == 0;
}

} // namespace kestrum
