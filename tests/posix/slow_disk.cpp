#include "tests/slow_disk.h"

#include <chrono>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace kestrum {

std::atomic<int> slow_disk_milliseconds = 0;

} // namespace kestrum

/// Stands before the system's own in this program.
extern "C" int fsync(int handle) { // NOLINT(readability-inconsistent-declaration-parameter-name)
    std::this_thread::sleep_for(std::chrono::milliseconds(kestrum::slow_disk_milliseconds));
    return static_cast<int>(::syscall(SYS_fsync, handle));
}
