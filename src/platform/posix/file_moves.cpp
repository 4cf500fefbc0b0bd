#include "platform/file_moves.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

namespace {

Rename_Outcome Outcome_Of(int failure) {
    return failure == EEXIST ? Rename_Outcome::Name_Taken : Rename_Outcome::Failed;
}

} // namespace

bool Remove_File(const std::string& path) {
    return ::unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
}

void Remove_Empty_Folder(const std::string& path) {
    static_cast<void>(::rmdir(path.c_str()));
}

Rename_Outcome Rename_Without_Loss(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return Rename_Outcome::Done;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return Outcome_Of(errno);
    }
    // A file system that cannot promise it: a second name never replaces either.
    if (::link(from.c_str(), to.c_str()) != 0) {
        return Outcome_Of(errno);
    }
    return ::unlink(from.c_str()) == 0 ? Rename_Outcome::Done : Rename_Outcome::Failed;
}

std::optional<File_Time> Last_Write(const std::string& path) {
    struct stat facts {};

    if (::stat(path.c_str(), &facts) != 0) {
        return std::nullopt;
    }
    return File_Time{.seconds = facts.st_mtim.tv_sec, .nanoseconds = facts.st_mtim.tv_nsec};
}

} // namespace kestrum
