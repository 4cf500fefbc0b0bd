#include "platform/lock_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

Lock_File::~Lock_File() {
    Release();
}

bool Lock_File::Take(const std::string& path) {
    // Each round lost is an exit that removed the file in between; many in a row are no accident.
    constexpr int most_rounds = 100;
    for (int round = 0; round < most_rounds; ++round) {
        Release();
        constexpr mode_t rights = 0666;
        path_ = path;
        handle_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, rights); // NOLINT(*-vararg)
        if (handle_ < 0) {
            return false;
        }
        if (::flock(handle_, LOCK_EX | LOCK_NB) != 0) {
            Release();
            return false;
        }
        if (Is_Held()) {
            return true;
        }
    }
    Release();
    return false;
}

bool Lock_File::Is_Held() const {
    struct stat locked {};

    struct stat named {};

    return handle_ >= 0 && ::fstat(handle_, &locked) == 0 && ::stat(path_.c_str(), &named) == 0 &&
           locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}

void Lock_File::Release() {
    if (handle_ >= 0) {
        ::close(handle_);
        handle_ = -1;
    }
}

} // namespace kestrum
