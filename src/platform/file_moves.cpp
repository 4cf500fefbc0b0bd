#include "platform/file_moves.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

/// Gives a file another name, never over one that bears it; the outcome as the system's number.
int Rename_Without_Loss(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // A file system that cannot promise it: a second name never replaces either.
    if (::link(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    return ::unlink(from.c_str()) == 0 ? 0 : errno;
}

std::string Numbered_Name(const fs::path& name, int number) {
    std::array<char, 12> digits{};
    const auto [end, failure] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    static_cast<void>(failure); // twelve characters hold every int
    return name.stem().string() + "-" + std::string(digits.data(), end) + name.extension().string();
}

} // namespace

bool Remove_File(const std::string& path) {
    return ::unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR;
}

void Remove_Empty_Folder(const std::string& path) {
    static_cast<void>(::rmdir(path.c_str()));
}

std::string Move_To_Fresh_Name(const std::string& path, std::string_view folder) {
    constexpr int most_names = 100000;
    const fs::path name = fs::path(path).filename();
    for (int number = 1; number <= most_names; ++number) {
        const fs::path fresh =
            fs::path(folder) / (number == 1 ? name.string() : Numbered_Name(name, number));
        const int failure = Rename_Without_Loss(path, fresh.string());
        if (failure == 0) {
            return fresh.string();
        }
        if (failure != EEXIST) {
            return {};
        }
    }
    return {};
}

std::int64_t Moment_Of_File(const std::string& path) {
    struct stat facts {};

    constexpr std::int64_t second = 1'000'000'000;
    return ::stat(path.c_str(), &facts) == 0
               ? std::int64_t{facts.st_mtim.tv_sec} * second + facts.st_mtim.tv_nsec
               : 0;
}

} // namespace kestrum
