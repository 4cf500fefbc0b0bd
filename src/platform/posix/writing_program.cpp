#include "platform/writing_program.h"

#include "base/byte_digest.h"
#include "base/run_time_error.h"
#include "platform/file_store.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

std::string Content_If_Any(const std::string& path) {
    try {
        return Read_Whole_File(path);
    } catch (const Run_Time_Error&) {
        return {};
    }
}

/// What the system tells of a process: a letter for its state, and when it began.
struct Process_Facts {
    char state = '?';
    std::uint64_t start = 0;
};

std::optional<Process_Facts> Facts_Of(std::uint64_t process) {
    constexpr int words_to_start = 20; // from the state on, behind a name that may hold anything
    std::array<char, 20> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), process).ptr;
    const std::string text = Content_If_Any("/proc/" + std::string(digits.data(), end) + "/stat");
    std::size_t blank = text.rfind(')');
    Process_Facts facts;
    for (int word = 0; word < words_to_start && blank != std::string::npos; ++word) {
        blank = text.find(' ', blank + 1);
        if (word == 0 && blank != std::string::npos && blank + 1 < text.size()) {
            facts.state = text[blank + 1];
        }
    }
    if (blank == std::string::npos) {
        return std::nullopt;
    }
    std::from_chars(text.data() + blank + 1, text.data() + text.size(), facts.start);
    return facts;
}

/// One number for this run of the system and this set of processes: elsewhere the number of a
/// process means another one.
std::uint64_t This_System() {
    std::string words = Content_If_Any("/proc/sys/kernel/random/boot_id");
    std::error_code unknown;
    words += fs::read_symlink("/proc/self/ns/pid", unknown).string();
    return Digest_Of(words);
}

} // namespace

Writing_Program This_Program() {
    const auto process = static_cast<std::uint64_t>(::getpid());
    return {.process = process,
            .start = Facts_Of(process).value_or(Process_Facts{}).start,
            .system = This_System()};
}

bool Is_Dead(const Writing_Program& program) {
    const auto facts = Facts_Of(program.process);
    if (facts) {
        return facts->start != program.start || facts->state == 'Z' || facts->state == 'X';
    }
    return ::kill(static_cast<pid_t>(program.process), 0) != 0 && errno == ESRCH;
}

bool Is_File_Of_User(const std::string& path) {
    struct stat facts {};

    return ::lstat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_nlink == 1 &&
           facts.st_uid == ::geteuid();
}

} // namespace kestrum
