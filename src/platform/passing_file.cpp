#include "platform/passing_file.h"

#include "base/run_time_error.h"
#include "platform/file_store.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view passing_mark = ".kestrum-";
constexpr std::string_view safety_mark = ".kestrum-old-";
constexpr int hexadecimal = 16;

/// A running program as the name of its file tells it.
struct Writer {
    std::uint64_t process = 0;
    /// When it began, in the system's ticks; 0 where that cannot be known.
    std::uint64_t start = 0;
    /// The run of the system and the set of processes that it belongs to.
    std::uint64_t system = 0;

    bool operator==(const Writer&) const = default;
};

std::string Number_Text(std::uint64_t number) {
    std::array<char, 16> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, hexadecimal).ptr;
    return {digits.data(), end};
}

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
    constexpr std::uint64_t offset = 0xCBF29CE484222325U;
    constexpr std::uint64_t prime = 0x100000001B3U;
    std::uint64_t mixed = offset;
    for (const char letter : words) {
        mixed = (mixed ^ static_cast<unsigned char>(letter)) * prime;
    }
    return mixed;
}

Writer This_Writer() {
    const auto process = static_cast<std::uint64_t>(::getpid());
    return {.process = process,
            .start = Facts_Of(process).value_or(Process_Facts{}).start,
            .system = This_System()};
}

std::string Name_With(std::string_view front, std::string_view target_name, std::string_view mark,
                      int number) {
    const Writer writer = This_Writer();
    std::string end(mark);
    end += Number_Text(writer.process) + "-" + Number_Text(writer.start) + "-" +
           Number_Text(writer.system) + "-" + Number_Text(static_cast<std::uint64_t>(number));
    constexpr std::size_t longest_name = 255;
    std::size_t kept = std::min(target_name.size(), longest_name - front.size() - end.size());
    constexpr unsigned inside_letter = 0x80;
    constexpr unsigned letter_bits = 0xC0;
    while (kept > 0 && kept < target_name.size() &&
           (static_cast<unsigned char>(target_name[kept]) & letter_bits) == inside_letter) {
        --kept; // not within a letter of several bytes, which some systems refuse
    }
    return std::string(front) + std::string(target_name.substr(0, kept)) + end;
}

/// The writer that a name tells of; nothing for a name of another form.
std::optional<Writer> Writer_Named_In(std::string_view name) {
    const std::size_t mark = name.rfind(passing_mark);
    if (!name.starts_with('.') || mark == std::string_view::npos) {
        return std::nullopt;
    }
    std::array<std::uint64_t, 4> numbers{};
    const char* begin = name.data() + mark + passing_mark.size();
    const char* const end = name.data() + name.size();
    for (std::uint64_t& number : numbers) {
        const auto read = std::from_chars(begin, end, number, hexadecimal);
        const bool is_last = &number == &numbers.back();
        if (read.ec != std::errc() || (is_last ? read.ptr != end : read.ptr == end) ||
            (!is_last && *read.ptr != '-')) {
            return std::nullopt;
        }
        begin = read.ptr + (is_last ? 0 : 1);
    }
    return Writer{.process = numbers[0], .start = numbers[1], .system = numbers[2]};
}

bool Is_Dead(const Writer& writer) {
    const auto facts = Facts_Of(writer.process);
    if (facts) {
        return facts->start != writer.start || facts->state == 'Z' || facts->state == 'X';
    }
    return ::kill(static_cast<pid_t>(writer.process), 0) != 0 && errno == ESRCH;
}

/// Whether the file is one of ours that nobody is writing any more.
bool Is_Left_Over(const std::string& path, const Writer& writer) {
    struct stat facts {};

    if (::lstat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_nlink != 1 ||
        facts.st_uid != ::geteuid()) {
        return false;
    }
    if (writer.system == This_System()) {
        return Is_Dead(writer);
    }
    // Of a run before the last start, or of another machine that shares the folder: nobody here can
    // ask for its life, but no save takes a day.
    constexpr std::time_t one_day = 24L * 60 * 60;
    return facts.st_mtime < std::time(nullptr) - one_day;
}

} // namespace

std::string Passing_Name(std::string_view target_name, int number) {
    return Name_With(".", target_name, passing_mark, number);
}

std::string Safety_Copy_Name(std::string_view target_name, int number) {
    return Name_With("", target_name, safety_mark, number);
}

void Remove_Left_Overs(const std::string& folder) {
    std::vector<std::string> left_overs; // the list must not change while it is gone through
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const auto writer = Writer_Named_In(entry->path().filename().native());
        if (writer && Is_Left_Over(entry->path().string(), *writer)) {
            left_overs.push_back(entry->path().string());
        }
    }
    for (const std::string& left_over : left_overs) {
        fs::remove(left_over, failed);
    }
}

} // namespace kestrum
