#include "platform/lock_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace kestrum {

Lock_File::~Lock_File() {
    Release();
}

bool Lock_File::Take(const std::string& path) {
    Release();
    constexpr mode_t rights = 0666;
    handle_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, rights); // NOLINT(*-vararg)
    if (handle_ >= 0 && ::flock(handle_, LOCK_EX | LOCK_NB) != 0) {
        Release();
    }
    return handle_ >= 0;
}

void Lock_File::Release() {
    if (handle_ >= 0) {
        ::close(handle_);
        handle_ = -1;
    }
}

} // namespace kestrum
