#include "platform/passing_file.h"

#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "platform/writing_program.h"

#include <array>
#include <charconv>
#include <ctime>
#include <optional>

namespace kestrum {

namespace {

constexpr std::string_view passing_mark = ".kestrum-";
constexpr std::string_view safety_mark = ".kestrum-old-";
constexpr int hexadecimal = 16;

std::string Number_Text(std::uint64_t number) {
    std::array<char, 16> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, hexadecimal).ptr;
    return {digits.data(), end};
}

std::string Name_With(std::string_view front, std::string_view target_name, std::string_view mark,
                      int number) {
    const Writing_Program writer = This_Program();
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
std::optional<Writing_Program> Writer_Named_In(std::string_view name) {
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
    return Writing_Program{.process = numbers[0], .start = numbers[1], .system = numbers[2]};
}

/// Whether the file is one of ours that nobody is writing any more.
bool Is_Left_Over(const std::string& path, const Writing_Program& writer) {
    if (!Is_File_Of_User(path)) {
        return false;
    }
    if (writer.system == This_Program().system) {
        return Is_Dead(writer);
    }
    // Of a run before the last start, or of another machine that shares the folder: nobody here can
    // ask for its life, but no save takes a day.
    constexpr std::time_t one_day = 24L * 60 * 60;
    const std::optional<File_Time> written = Last_Write(path);
    return written && written->seconds < std::time(nullptr) - one_day;
}

} // namespace

std::string Passing_Name(std::string_view target_name, int number) {
    return Name_With(".", target_name, passing_mark, number);
}

std::string Safety_Copy_Name(std::string_view target_name, int number) {
    return Name_With("", target_name, safety_mark, number);
}

void Remove_Left_Overs(const std::string& folder) {
    for (const std::string& name : Names_In_Folder(folder)) {
        const auto writer = Writer_Named_In(name);
        const std::string path = writer ? Join_Path(folder, name) : "";
        if (writer && Is_Left_Over(path, *writer)) {
            Remove_File(path);
        }
    }
}

} // namespace kestrum
