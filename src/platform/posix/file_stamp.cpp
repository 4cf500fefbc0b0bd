#include "platform/file_stamp.h"

#include <ctime>
#include <sys/stat.h>

namespace kestrum {

std::optional<File_Stamp> Settled_Stamp(const std::string& path) {
    struct stat facts {};

    constexpr std::int64_t seconds_to_settle = 2;
    if (::stat(path.c_str(), &facts) != 0 ||
        std::time(nullptr) - facts.st_ctim.tv_sec < seconds_to_settle) {
        return std::nullopt;
    }
    return File_Stamp{.file = facts.st_ino,
                      .size = facts.st_size,
                      .changed_seconds = facts.st_ctim.tv_sec,
                      .changed_nanoseconds = facts.st_ctim.tv_nsec};
}

} // namespace kestrum
