#include "platform/windows/system_path.h"

#include "base/run_time_error.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace kestrum {

namespace {

constexpr std::string_view separators = "/\\";

/// Names of devices in whatever folder and with whatever extension.
bool Is_Device(std::string_view part) {
    std::string stem(part.substr(0, part.find('.')));
    stem.erase(stem.find_last_not_of(' ') + 1);
    std::ranges::transform(stem, stem.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    static constexpr std::array<std::string_view, 6> names{"CON", "PRN",    "AUX",
                                                           "NUL", "CONIN$", "CONOUT$"};
    const bool is_port = stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) &&
                         stem.back() >= '1' && stem.back() <= '9';
    return is_port || std::ranges::find(names, stem) != names.end();
}

bool Is_Forbidden(std::string_view part) {
    if (part.empty() || part == "." || part == "..") {
        return false;
    }
    constexpr std::string_view forbidden = "<>:\"|?*";
    constexpr unsigned char first_letter = 0x20;
    return part.ends_with(' ') || part.ends_with('.') || Is_Device(part) ||
           part.find_first_of(forbidden) != std::string_view::npos ||
           std::ranges::any_of(
               part, [](char letter) { return static_cast<unsigned char>(letter) < first_letter; });
}

/// A path without what names the disk: "C:", or the "\\?\" of one that is whole already.
std::string_view Behind_Disk(std::string_view path) {
    constexpr std::string_view whole = R"(\\?\)";
    if (path.starts_with(whole)) {
        path.remove_prefix(whole.size());
    }
    return path.size() > 1 && path[1] == ':' ? path.substr(2) : path;
}

/// The first part of a path that no file may have as its name; empty when there is none.
std::string_view Forbidden_Part(std::string_view path) {
    path = Behind_Disk(path);
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(separators), path.size());
        if (Is_Forbidden(path.substr(0, end))) {
            return path.substr(0, end);
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return {};
}

} // namespace

std::wstring Wide_Text(std::string_view text) {
    const int size = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
    return wide;
}

std::string Narrow_Text(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
    return narrow;
}

std::string Words_Of_Failure(unsigned long failure) {
    std::wstring words(512, L'\0');
    words.resize(::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                  nullptr, failure, 0, words.data(),
                                  static_cast<DWORD>(words.size()), nullptr));
    words.erase(words.find_last_not_of(L"\r\n ") + 1);
    return Narrow_Text(words);
}

std::wstring System_Path(std::string_view path) {
    constexpr std::wstring_view whole = LR"(\\?\)";
    constexpr std::wstring_view share = LR"(\\)";
    const std::wstring given = Wide_Text(path);
    if (given.empty() || given.starts_with(whole)) {
        return given;
    }
    const DWORD room = ::GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
    std::wstring full(room, L'\0');
    full.resize(::GetFullPathNameW(given.c_str(), room, full.data(), nullptr));
    if (full.starts_with(share)) {
        constexpr std::wstring_view device = LR"(\\.\)";
        return full.starts_with(device) ? full : LR"(\\?\UNC)" + full.substr(1);
    }
    return std::wstring(whole) + full;
}

bool Has_Forbidden_Name(std::string_view path) {
    return !Forbidden_Part(path).empty();
}

void Refuse_Forbidden_Name(std::string_view path) {
    const std::string_view part = Forbidden_Part(path);
    if (!part.empty()) {
        throw Run_Time_Error(error::path_or_file_access,
                             "Windows takes no file of the name \"" + std::string(part) + "\"");
    }
}

} // namespace kestrum
