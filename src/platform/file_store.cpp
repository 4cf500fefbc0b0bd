#include "platform/file_store.h"

#include "platform/run_time_error.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

/// The system's number for what the operating system reports.
[[noreturn]] void Fail_With_System_Error(int system_error) {
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

/// An open file that is closed on every way out.
class Open_File {
public:
    Open_File(const std::string& path, int flags, mode_t mode = 0)
        : handle_(::open(path.c_str(), flags | O_CLOEXEC, mode)) { // NOLINT(*-vararg)
        if (handle_ < 0) {
            Fail_With_System_Error(errno);
        }
    }

    Open_File(const Open_File&) = delete;
    Open_File& operator=(const Open_File&) = delete;

    ~Open_File() {
        if (handle_ >= 0) {
            ::close(handle_);
        }
    }

    [[nodiscard]] int Handle() const { return handle_; }

    /// Closes at once, since a full disk of the network may only be told here.
    void Close() {
        const int closing = handle_;
        handle_ = -1;
        if (::close(closing) != 0) {
            Fail_With_System_Error(errno);
        }
    }

private:
    int handle_;
};

void Write_All(const Open_File& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(file.Handle(), content.data(), content.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            Fail_With_System_Error(errno);
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// A save through a link must replace the file, not the link.
std::string Real_Target(const std::string& path) {
    std::error_code failed;
    const fs::path real = fs::canonical(path, failed);
    return failed ? path : real.string();
}

/// The file that is there keeps its rights when its content is replaced.
mode_t Rights_Of(const std::string& path) {
    struct stat facts {};

    const bool known = ::stat(path.c_str(), &facts) == 0;
    constexpr mode_t usual = 0666;
    constexpr mode_t all_rights = 07777;
    if (known && !S_ISREG(facts.st_mode)) {
        Fail(error::path_or_file_access);
    }
    // A file that may not be written is not replaced either.
    if (known && ::access(path.c_str(), W_OK) != 0) {
        Fail(error::permission_denied);
    }
    return known ? (facts.st_mode & all_rights) : usual;
}

/// A name that no file of the user bears: the save must not run over a neighbour. Raises 76 where
/// there is no folder.
std::string Name_Beside(const std::string& target) {
    std::error_code failed; // a name without a file, a folder that nobody may look into
    if (!fs::is_directory(fs::absolute(target, failed).parent_path(), failed)) {
        Fail(error::path_not_found);
    }
    std::string name = target + ".kestrum-save";
    // What a program that was killed in the middle of a save has left.
    fs::remove(name, failed);
    return name;
}

/// Without this a power cut may bring the old name list of the folder back; some file systems
/// refuse it, which costs nothing else.
void Flush_Folder(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    const int handle = ::open(folder.empty() ? "." : folder.c_str(), // NOLINT(*-vararg)
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
}

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

} // namespace

std::string Join_Path(std::string_view folder, std::string_view name) {
    return (fs::path(folder) / fs::path(name)).string();
}

std::string Name_In_Folder(std::string_view folder, const std::string& path) {
    const std::string inside = Join_Path(folder, "");
    return path.starts_with(inside) ? path.substr(inside.size())
                                    : fs::path(path).filename().string();
}

bool Holds_Separator(std::string_view name) {
    return name.find('/') != std::string_view::npos ||
           name.find(static_cast<char>(fs::path::preferred_separator)) != std::string_view::npos;
}

std::string Find_Case_Blind(const std::string& path) {
    if (File_Exists(path)) {
        return path;
    }
    const fs::path wanted(path);
    const std::string wanted_name = Lower(wanted.filename().string());
    std::vector<std::string> fitting;
    std::error_code failed;
    for (fs::directory_iterator entry(wanted.parent_path(), failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (Lower(name) == wanted_name) {
            fitting.push_back(name);
        }
    }
    if (fitting.empty()) {
        return path;
    }
    return (wanted.parent_path() / *std::ranges::min_element(fitting)).string();
}

bool File_Exists(const std::string& path) {
    std::error_code failed;
    return fs::exists(path, failed);
}

bool Can_Be_Read(const std::string& path) {
    std::error_code failed;
    return fs::is_regular_file(path, failed) && ::access(path.c_str(), R_OK) == 0;
}

bool Make_Folder(const std::string& path) {
    std::error_code failed;
    fs::create_directories(path, failed);
    return fs::is_directory(path, failed);
}

void Remove_Folder(const std::string& path) {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

void Move_File(const std::string& from, const std::string& to) {
    std::error_code ignored;
    fs::rename(from, to, ignored);
}

std::string Time_Of_File(const std::string& path) {
    struct stat facts {};

    std::tm local{};
    if (::stat(path.c_str(), &facts) != 0 || ::localtime_r(&facts.st_mtime, &local) == nullptr) {
        return {};
    }
    std::string text;
    const auto put = [&text](int number, std::size_t digits, std::string_view mark) {
        const std::size_t at = text.size();
        text.append(digits, '0');
        for (std::size_t digit = digits; digit > 0 && number > 0; --digit, number /= 10) {
            text[at + digit - 1] = static_cast<char>('0' + number % 10);
        }
        text += mark;
    };
    constexpr int first_year = 1900;
    put(local.tm_year + first_year, 4, "-");
    put(local.tm_mon + 1, 2, "-");
    put(local.tm_mday, 2, " ");
    put(local.tm_hour, 2, ":");
    put(local.tm_min, 2, ":");
    put(local.tm_sec, 2, "");
    return text;
}

std::string Read_Whole_File(const std::string& path) {
    std::error_code unknown;
    if (fs::exists(path, unknown) && !fs::is_regular_file(path, unknown)) {
        Fail(error::path_or_file_access); // a device or a pipe may never end
    }
    const Open_File file(path, O_RDONLY);
    std::string content;
    constexpr std::size_t piece = 65536;
    std::vector<char> buffer(piece);
    for (;;) {
        const ssize_t got = ::read(file.Handle(), buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            Fail_With_System_Error(errno);
        }
        if (got == 0) {
            return content;
        }
        content.append(buffer.data(), static_cast<std::size_t>(got));
    }
}

void Write_Whole_File(const std::string& path, std::string_view content) {
    const std::string target = Real_Target(path);
    const mode_t rights = Rights_Of(target);
    const std::string beside = Name_Beside(target);
    std::error_code ignored;
    Open_File file(beside, O_WRONLY | O_CREAT | O_EXCL, 0666);
    try {
        Write_All(file, content);
        if (File_Exists(target) && ::fchmod(file.Handle(), rights) != 0) {
            Fail_With_System_Error(errno);
        }
        if (::fsync(file.Handle()) != 0) {
            Fail_With_System_Error(errno);
        }
        file.Close();
        if (::rename(beside.c_str(), target.c_str()) != 0) {
            Fail_With_System_Error(errno);
        }
    } catch (const Run_Time_Error&) {
        fs::remove(beside, ignored);
        throw;
    }
    Flush_Folder(target);
}

} // namespace kestrum
