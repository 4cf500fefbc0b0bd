#include "platform/open_file.h"

#include "base/run_time_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

namespace {

/// Opens, and refuses what is no regular file: a device or a pipe may never end.
int Handle_Of_Regular_File(const std::string& path) {
    // Not to wait for the other end of a pipe, and not to be taken over by a terminal.
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int handle = ::open(path.c_str(), flags); // NOLINT(*-vararg)
    if (handle < 0) {
        Fail_With_System_Error(errno);
    }

    struct stat facts {};

    if (::fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode)) {
        ::close(handle);
        Fail(error::path_or_file_access);
    }
    return handle;
}

} // namespace

void Fail_With_System_Error(int system_error) {
    switch (system_error) {
    case ENOENT:
        Fail(error::file_not_found);
    case ENOTDIR:
        Fail(error::path_not_found);
    case EACCES:
    case EPERM:
    case EROFS:
        Fail(error::permission_denied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        Fail(error::disk_full);
    default:
        Fail(error::path_or_file_access);
    }
}

Open_File::Open_File(int handle) : handle_(handle) {
    if (handle_ < 0) {
        Fail_With_System_Error(errno);
    }
}

Open_File::~Open_File() {
    if (handle_ >= 0) {
        ::close(handle_);
    }
}

std::uint64_t Open_File::Size() const {
    struct stat facts {};

    if (::fstat(handle_, &facts) != 0) {
        Fail_With_System_Error(errno);
    }
    return static_cast<std::uint64_t>(facts.st_size);
}

std::string Open_File::Piece(std::uint64_t offset, std::size_t bytes) const {
    std::string piece(bytes, '\0');
    std::size_t filled = 0;
    while (filled < bytes) {
        const ssize_t got = ::pread(handle_, piece.data() + filled, bytes - filled,
                                    static_cast<off_t>(offset + filled));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            Fail_With_System_Error(errno);
        }
        if (got == 0) {
            break;
        }
        filled += static_cast<std::size_t>(got);
    }
    piece.resize(filled);
    return piece;
}

void Open_File::Write_All(std::string_view content) const {
    while (!content.empty()) {
        const ssize_t written = ::write(handle_, content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            Fail_With_System_Error(errno);
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Open_File::Flush() const {
    if (::fsync(handle_) != 0) {
        Fail_With_System_Error(errno);
    }
}

void Open_File::Close() {
    const int closing = handle_;
    handle_ = -1;
    if (::close(closing) != 0) {
        Fail_With_System_Error(errno);
    }
}

Open_File Open_To_Read(const std::string& path) {
    return Open_File(Handle_Of_Regular_File(path));
}

int Handle_Of_New_File(const std::string& path, bool secret) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    constexpr mode_t nobody_else = 0600;
    constexpr mode_t usual = 0666;
    const int handle =
        ::open(path.c_str(), flags, secret ? nobody_else : usual); // NOLINT(*-vararg)
    if (handle < 0 && errno == ENOENT) {
        Fail(error::path_not_found); // the folder, for the file is to be made
    }
    if (handle < 0 && errno != EEXIST) {
        Fail_With_System_Error(errno);
    }
    return handle;
}

} // namespace kestrum
