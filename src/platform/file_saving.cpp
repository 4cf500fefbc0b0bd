#include "base/run_time_error.h"
#include "platform/file_store.h"
#include "platform/open_file.h"
#include "platform/passing_file.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <sys/file.h>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

/// Where a save goes, and what is there.
struct Target {
    std::string path;
    std::string folder;
    std::string name;
    bool exists = false;

    struct stat facts {};
};

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

/// Raises 75 for what is no file, 70 for one that may not be written, 76 where there is no folder.
Target Target_Of(const std::string& path) {
    const fs::path real = Behind_Links(path);
    Target target{.path = real.string(),
                  .folder = real.has_parent_path() ? real.parent_path().string() : ".",
                  .name = real.filename().string()};
    std::error_code failed; // a folder that nobody may look into
    if (!fs::is_directory(target.folder, failed)) {
        Fail(error::path_not_found);
    }
    target.exists = ::lstat(target.path.c_str(), &target.facts) == 0;
    if (target.name.empty() || (target.exists && !S_ISREG(target.facts.st_mode))) {
        Fail(error::path_or_file_access);
    }
    // A file that may not be written is not replaced either.
    if (target.exists && ::access(target.path.c_str(), W_OK) != 0) {
        Fail(error::permission_denied);
    }
    return target;
}

/// A file of a name that nothing bore, which goes again unless it is kept.
class Fresh_File {
public:
    using Naming = std::function<std::string(std::string_view name, int number)>;

    Fresh_File(const Target& target, const Naming& naming, mode_t rights)
        : file_(Opened(target, naming, rights)) {}

    Fresh_File(const Fresh_File&) = delete;
    Fresh_File& operator=(const Fresh_File&) = delete;

    ~Fresh_File() {
        if (!kept_) {
            ::unlink(path_.c_str());
        }
    }

    [[nodiscard]] Open_File& File() { return file_; }

    [[nodiscard]] const std::string& Path() const { return path_; }

    void Keep() { kept_ = true; }

private:
    int Opened(const Target& target, const Naming& naming, mode_t rights) {
        // Only this program makes files of these names, and hardly two at a time.
        constexpr int most_tries = 1000;
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        int handle = -1;
        for (int number = 0; number < most_tries && handle < 0; ++number) {
            path_ = (fs::path(target.folder) / naming(target.name, number)).string();
            handle = ::open(path_.c_str(), flags, rights); // NOLINT(*-vararg)
            if (handle < 0 && errno != EEXIST) {
                break;
            }
        }
        return handle;
    }

    std::string path_;
    bool kept_ = false;
    Open_File file_;
};

/// Gives a new file the owner and the rights of the one whose place it takes. What others could do
/// with the old file because of its owner or group, they must not do in the name of this user.
void Take_Over_Rights(const Open_File& file, const struct stat& old) {
    const int handle = file.Handle();

    struct stat made = file.Facts();

    if (made.st_uid != old.st_uid || made.st_gid != old.st_gid) {
        if (::fchown(handle, old.st_uid, old.st_gid) != 0) {
            // Not allowed, as mostly; the group alone often is.
            static_cast<void>(::fchown(handle, static_cast<uid_t>(-1), old.st_gid) == 0);
        }
        made = file.Facts();
    }
    constexpr mode_t all_rights = 07777;
    constexpr mode_t others = S_IRWXO;
    constexpr unsigned from_others_to_group = 3;
    mode_t rights = old.st_mode & all_rights;
    if (made.st_uid != old.st_uid) {
        rights &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    }
    if (made.st_gid != old.st_gid) {
        rights &= ~static_cast<mode_t>(S_ISUID | S_ISGID | S_IRWXG);
        rights |= (old.st_mode & others) << from_others_to_group;
    }
    if (::fchmod(handle, rights) != 0) {
        Fail_With_System_Error(errno);
    }
}

/// Without this a power cut may bring the old name list of the folder back; some file systems
/// refuse it, which costs nothing else.
void Flush_Folder(const std::string& folder) {
    const int handle =
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); // NOLINT(*-vararg)
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

void Replace_In_One_Step(const Target& target, std::string_view content) {
    // Nobody else looks into it before it has the rights of the old file. A new one has those that
    // the system gives at once.
    constexpr mode_t nobody_else = 0600;
    constexpr mode_t usual = 0666;
    Fresh_File fresh(target, Passing_Name, target.exists ? nobody_else : usual);
    fresh.File().Write_All(content);
    if (target.exists) {
        Take_Over_Rights(fresh.File(), target.facts);
    }
    fresh.File().Flush();
    fresh.File().Close();
    if (::rename(fresh.Path().c_str(), target.path.c_str()) != 0) {
        Fail_With_System_Error(errno);
    }
    fresh.Keep(); // under the target's name
    Flush_Folder(target.folder);
}

/// One program at a time, as far as all are this one. A lock that somebody does not let go must not
/// stop the save for ever.
void Wait_For_Turn(const Open_File& file) {
    constexpr int most_tries = 200;
    constexpr useconds_t moment = 10'000; // microseconds
    for (int tries = 0; tries < most_tries && ::flock(file.Handle(), LOCK_EX | LOCK_NB) != 0;
         ++tries) {
        ::usleep(moment);
    }
}

void Copy_Content(const Open_File& from, const Open_File& to) {
    constexpr std::size_t piece = 65536;
    off_t offset = 0;
    for (std::string bytes = from.Piece(offset, piece); !bytes.empty();
         bytes = from.Piece(offset, piece)) {
        to.Write_All(bytes);
        offset += static_cast<off_t>(bytes.size());
    }
}

/// Writes over what a file holds from its beginning, and cuts it there.
void Write_Over(const Open_File& file, const std::function<void()>& write) {
    if (::lseek(file.Handle(), 0, SEEK_SET) != 0) {
        Fail_With_System_Error(errno);
    }
    write();
    if (::ftruncate(file.Handle(), ::lseek(file.Handle(), 0, SEEK_CUR)) != 0) {
        Fail_With_System_Error(errno);
    }
    file.Flush();
}

/// A file of several names must stay one file, so a new one cannot take its place: the other names
/// would keep the old content without a word. It is written where it is. A copy of the old content
/// lies beside it meanwhile, to be put back after a failure; a program that is killed in the middle
/// leaves that copy for the user.
void Replace_In_Place(const Target& target, std::string_view content) {
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Open_File file(::open(target.path.c_str(), flags)); // NOLINT(*-vararg)
    if (!S_ISREG(file.Facts().st_mode)) {
        Fail(error::path_or_file_access);
    }
    Wait_For_Turn(file);
    constexpr mode_t nobody_else = 0600;
    Fresh_File copy(target, Safety_Copy_Name, nobody_else);
    Copy_Content(file, copy.File());
    copy.File().Flush();
    Flush_Folder(target.folder);
    copy.Keep(); // until the file itself is whole again
    try {
        Write_Over(file, [&] { file.Write_All(content); });
    } catch (const Run_Time_Error&) {
        const Open_File old = Open_To_Read(copy.Path());
        Write_Over(file, [&] { Copy_Content(old, file); });
        ::unlink(copy.Path().c_str());
        throw;
    }
    ::unlink(copy.Path().c_str());
}

} // namespace

void Write_Whole_File(const std::string& path, std::string_view content) {
    if (content.size() > most_text_bytes) {
        Fail(error::path_or_file_access);
    }
    Replace_File(path, content);
}

void Replace_File(const std::string& path, std::string_view content) {
    const Target target = Target_Of(path);
    Remove_Left_Overs(target.folder);
    if (target.exists && target.facts.st_nlink > 1) {
        Replace_In_Place(target, content);
    } else {
        Replace_In_One_Step(target, content);
    }
}

} // namespace kestrum
