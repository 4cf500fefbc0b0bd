#include "platform/file_store.h"

#include "base/run_time_error.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return text;
}

/// The name under which a folder holds what is wanted: the exact one, else the first in byte order
/// that differs in case alone; empty when there is none.
std::string Name_As_Held(const fs::path& folder, const std::string& wanted) {
    std::error_code failed;
    if (fs::exists(folder / wanted, failed)) {
        return wanted;
    }
    std::string first;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, failed), end;
         !failed && entry != end; entry.increment(failed)) {
        std::string name = entry->path().filename().string();
        if (Lower(name) == Lower(wanted) && (first.empty() || name < first)) {
            first = std::move(name);
        }
    }
    return first;
}

struct Time_Marks {
    std::string_view before_hour;
    std::string_view at_end;
};

std::string Time_Of_File(const std::string& path, std::tm* (*broken_down)(const time_t*, std::tm*),
                         const Time_Marks& marks) {
    struct stat facts {};

    std::tm moment{};
    if (::stat(path.c_str(), &facts) != 0 || broken_down(&facts.st_mtime, &moment) == nullptr) {
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
    put(moment.tm_year + first_year, 4, "-");
    put(moment.tm_mon + 1, 2, "-");
    put(moment.tm_mday, 2, marks.before_hour);
    put(moment.tm_hour, 2, ":");
    put(moment.tm_min, 2, ":");
    put(moment.tm_sec, 2, marks.at_end);
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
    // No system opens a longer one, and each part of it costs a look into a folder.
    constexpr std::size_t longest_path = 4096;
    if (path.size() > longest_path || File_Exists(path)) {
        return path;
    }
    const fs::path wanted(path);
    fs::path found = wanted.root_path();
    for (const fs::path& part : wanted.relative_path()) {
        const std::string name = Name_As_Held(found, part.string());
        if (name.empty()) {
            return path;
        }
        found /= name;
    }
    return found.string();
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

void Move_File(const std::string& from, const std::string& to) {
    std::error_code ignored;
    fs::rename(from, to, ignored);
}

std::string Time_Of_File(const std::string& path) {
    return Time_Of_File(path, ::localtime_r, {.before_hour = " ", .at_end = ""});
}

std::string Utc_Time_Of_File(const std::string& path) {
    return Time_Of_File(path, ::gmtime_r, {.before_hour = "T", .at_end = "Z"});
}

} // namespace kestrum
