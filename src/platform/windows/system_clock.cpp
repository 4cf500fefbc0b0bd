#include "platform/system_clock.h"

#include "platform/windows/system_path.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace kestrum {

namespace {

/// The system's own name for a locale: "de-DE" for "de_DE.UTF-8". The user's own has none.
std::wstring System_Name(const std::string& locale) {
    if (locale == "C") {
        return L"en-US";
    }
    std::string name = locale.substr(0, locale.find('.'));
    std::ranges::replace(name, '_', '-');
    return Wide_Text(name);
}

std::string Word_Of(const std::string& locale, LCTYPE which) {
    constexpr std::size_t longest_word = 80;
    const std::wstring name = System_Name(locale);
    std::wstring word(longest_word, L'\0');
    const int length = ::GetLocaleInfoEx(name.empty() ? LOCALE_NAME_USER_DEFAULT : name.c_str(),
                                         which, word.data(), static_cast<int>(word.size()));
    word.resize(static_cast<std::size_t>(std::max(length - 1, 0))); // without its zero
    return Narrow_Text(word);
}

} // namespace

Moment Local_Moment(std::int64_t seconds) {
    // In steps of 100 nanoseconds since 1601.
    constexpr std::int64_t steps = 10'000'000;
    constexpr std::int64_t seconds_to_1970 = 11'644'473'600;
    constexpr unsigned half = 32;
    const std::int64_t time = (seconds + seconds_to_1970) * steps;
    const FILETIME universal{.dwLowDateTime = static_cast<DWORD>(time),
                             .dwHighDateTime = static_cast<DWORD>(time >> half)};
    SYSTEMTIME parts{};
    SYSTEMTIME local{};
    if (::FileTimeToSystemTime(&universal, &parts) == 0 ||
        ::SystemTimeToTzSpecificLocalTime(nullptr, &parts, &local) == 0) {
        return {.month = 0};
    }
    return {.year = local.wYear,
            .month = local.wMonth,
            .day = local.wDay,
            .hour = local.wHour,
            .minute = local.wMinute,
            .second = local.wSecond};
}

std::optional<std::string> Locale_Of_System(const std::string& name) {
    const std::wstring system_name = System_Name(name);
    const bool is_known = system_name.empty() || ::IsValidLocaleName(system_name.c_str()) != 0;
    return is_known ? std::optional(name) : std::nullopt;
}

Calendar_Words Words_Of(const std::string& locale, unsigned weekday, unsigned month) {
    static constexpr std::array<LCTYPE, 7> days{
        LOCALE_SDAYNAME7, LOCALE_SDAYNAME1, LOCALE_SDAYNAME2, LOCALE_SDAYNAME3,
        LOCALE_SDAYNAME4, LOCALE_SDAYNAME5, LOCALE_SDAYNAME6};
    return {.day_name = Word_Of(locale, days.at(weekday)),
            .month_name = Word_Of(locale, LOCALE_SMONTHNAME1 + month - 1)};
}

} // namespace kestrum
