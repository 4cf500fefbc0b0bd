#include "platform/file_store.h"

#include "platform/file_moves.h"
#include "platform/folder_entries.h"
#include "platform/system_clock.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <utility>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

/// What stands between the parts of a path; one twice where there is only one.
constexpr std::array letters_between{'/', static_cast<char>(fs::path::preferred_separator)};
constexpr std::string_view separators(letters_between.data(), letters_between.size());

struct Time_Marks {
    std::string_view before_hour;
    std::string_view at_end;
};

std::string Time_Text(const Moment& moment, const Time_Marks& marks) {
    std::string text;
    const auto put = [&text](int number, std::size_t digits, std::string_view mark) {
        const std::size_t at = text.size();
        text.append(digits, '0');
        for (std::size_t digit = digits; digit > 0 && number > 0; --digit, number /= 10) {
            text[at + digit - 1] = static_cast<char>('0' + number % 10);
        }
        text += mark;
    };
    put(moment.year, 4, "-");
    put(moment.month, 2, "-");
    put(moment.day, 2, marks.before_hour);
    put(moment.hour, 2, ":");
    put(moment.minute, 2, ":");
    put(moment.second, 2, marks.at_end);
    return text;
}

Moment Utc_Moment(std::int64_t seconds) {
    const std::chrono::sys_seconds moment{std::chrono::seconds(seconds)};
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day day(midnight);
    const std::chrono::hh_mm_ss time(moment - midnight);
    return {.year = int{day.year()},
            .month = static_cast<int>(unsigned{day.month()}),
            .day = static_cast<int>(unsigned{day.day()}),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count())};
}

} // namespace

std::string Name_In_Folder(std::string_view folder, const std::string& path) {
    const std::string inside = Join_Path(folder, "");
    return path.starts_with(inside) ? path.substr(inside.size()) : Bare_Name(path);
}

std::string Bare_Name(std::string_view path) {
    return std::string(path.substr(path.find_last_of(separators) + 1));
}

std::string Folder_Of(std::string_view path) {
    return std::string(path.substr(0, path.find_last_of(separators)));
}

bool Holds_Separator(std::string_view name) {
    return name.find_first_of(separators) != std::string_view::npos;
}

std::vector<std::string> Names_In_Folder(const std::string& folder) {
    std::vector<std::string> names;
    static_cast<void>(Look_Through_Folder(folder, [&names](Folder_Entry entry) {
        names.push_back(std::move(entry.name));
        return true;
    }));
    return names;
}

std::string Time_Of_File(const std::string& path) {
    const std::optional<File_Time> written = Last_Write(path);
    const Moment moment = written ? Local_Moment(written->seconds) : Moment{.month = 0};
    return moment.month == 0 ? "" : Time_Text(moment, {.before_hour = " ", .at_end = ""});
}

std::string Utc_Time_Of_File(const std::string& path) {
    const std::optional<File_Time> written = Last_Write(path);
    return written ? Time_Text(Utc_Moment(written->seconds), {.before_hour = "T", .at_end = "Z"})
                   : "";
}

} // namespace kestrum
