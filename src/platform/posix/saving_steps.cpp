#include "platform/saving_steps.h"

#include "base/run_time_error.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

/// Follows the links by hand: the system's way fails for a link to a file that is yet to be made.
fs::path Behind_Links(fs::path path) {
    constexpr int most_links = 40;
    for (int link = 0; link < most_links; ++link) {
        std::error_code failed;
        if (!fs::is_symlink(fs::symlink_status(path, failed))) {
            return path;
        }
        const fs::path next = fs::read_symlink(path, failed);
        if (failed) {
            Fail(error::path_or_file_access);
        }
        path = path.parent_path() / next; // an absolute one stands alone
    }
    Fail(error::path_or_file_access); // links that go round in a circle
}

struct stat Facts_Of(const Open_File& file) {
    struct stat facts {};

    if (::fstat(file.Handle(), &facts) != 0) {
        Fail_With_System_Error(errno);
    }
    return facts;
}

} // namespace

Save_Target Target_Of(const std::string& path) {
    const fs::path real = Behind_Links(path);
    Save_Target target{.path = real.string(),
                       .folder = real.has_parent_path() ? real.parent_path().string() : ".",
                       .name = real.filename().string()};
    std::error_code failed; // a folder that nobody may look into
    if (!fs::is_directory(target.folder, failed)) {
        Fail(error::path_not_found);
    }

    struct stat facts {};

    target.exists = ::lstat(target.path.c_str(), &facts) == 0;
    target.has_other_names = target.exists && facts.st_nlink > 1;
    constexpr mode_t all_rights = 07777;
    target.attributes = facts.st_mode & all_rights;
    target.owner = facts.st_uid;
    target.group = facts.st_gid;
    if (target.name.empty() || (target.exists && !S_ISREG(facts.st_mode))) {
        Fail(error::path_or_file_access);
    }
    // A file that may not be written is not replaced either.
    if (target.exists && ::access(target.path.c_str(), W_OK) != 0) {
        Fail(error::permission_denied);
    }
    return target;
}

void Take_Over_Rights(const Open_File& made_file, const Save_Target& target) {
    const int handle = made_file.Handle();

    struct stat made = Facts_Of(made_file);

    if (made.st_uid != target.owner || made.st_gid != target.group) {
        if (::fchown(handle, target.owner, target.group) != 0) {
            // Not allowed, as mostly; the group alone often is.
            static_cast<void>(::fchown(handle, static_cast<uid_t>(-1), target.group) == 0);
        }
        made = Facts_Of(made_file);
    }
    constexpr mode_t others = S_IRWXO;
    constexpr unsigned from_others_to_group = 3;
    mode_t rights = target.attributes;
    if (made.st_uid != target.owner) {
        rights &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    }
    if (made.st_gid != target.group) {
        rights &= ~static_cast<mode_t>(S_ISUID | S_ISGID | S_IRWXG);
        rights |= (target.attributes & others) << from_others_to_group;
    }
    if (::fchmod(handle, rights) != 0) {
        Fail_With_System_Error(errno);
    }
}

void Put_In_Place(const std::string& path, const Save_Target& target) {
    if (::rename(path.c_str(), target.path.c_str()) != 0) {
        Fail_With_System_Error(errno);
    }
}

void Flush_Folder(const std::string& folder) {
    const int handle =
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); // NOLINT(*-vararg)
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

int Handle_To_Change(const Save_Target& target) {
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int handle = ::open(target.path.c_str(), flags); // NOLINT(*-vararg)

    struct stat facts {};

    if (handle >= 0 && (::fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode))) {
        ::close(handle);
        Fail(error::path_or_file_access);
    }
    return handle;
}

void Wait_For_Turn(const Open_File& file) {
    constexpr int most_tries = 200;
    constexpr useconds_t moment = 10'000; // microseconds
    for (int tries = 0; tries < most_tries && ::flock(file.Handle(), LOCK_EX | LOCK_NB) != 0;
         ++tries) {
        ::usleep(moment);
    }
}

void Go_To_Front(const Open_File& file) {
    if (::lseek(file.Handle(), 0, SEEK_SET) != 0) {
        Fail_With_System_Error(errno);
    }
}

void Cut_Here(const Open_File& file) {
    if (::ftruncate(file.Handle(), ::lseek(file.Handle(), 0, SEEK_CUR)) != 0) {
        Fail_With_System_Error(errno);
    }
}

} // namespace kestrum
