#include "platform/system_clock.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <ctime>
#include <langinfo.h>
#include <memory>
#include <type_traits>

namespace kestrum {

namespace {

struct Free_Locale {
    void operator()(locale_t locale) const { ::freelocale(locale); }
};

using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, Free_Locale>;

Locale Open_Locale(const std::string& name) {
    return Locale(::newlocale(LC_TIME_MASK | LC_CTYPE_MASK, name.c_str(), nullptr));
}

} // namespace

Moment Local_Moment(std::int64_t seconds) {
    constexpr int first_year = 1900;
    const std::time_t moment = seconds;
    std::tm parts{};
    if (::localtime_r(&moment, &parts) == nullptr) {
        return {.month = 0};
    }
    return {.year = parts.tm_year + first_year,
            .month = parts.tm_mon + 1,
            .day = parts.tm_mday,
            .hour = parts.tm_hour,
            .minute = parts.tm_min,
            .second = parts.tm_sec};
}

std::optional<std::string> Locale_Of_System(const std::string& name) {
    std::string country = name; // "de_DE"
    std::ranges::transform(country, country.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    const std::array candidates{name, name + ".UTF-8", name + "_" + country + ".UTF-8"};
    const auto* const found = std::ranges::find_if(
        candidates, [](const std::string& candidate) { return Open_Locale(candidate) != nullptr; });
    return found == candidates.end() ? std::nullopt : std::optional(*found);
}

Calendar_Words Words_Of(const std::string& locale, unsigned weekday, unsigned month) {
    static constexpr std::array days{DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7};
    static constexpr std::array months{MON_1, MON_2, MON_3, MON_4,  MON_5,  MON_6,
                                       MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};
    const Locale open = Open_Locale(locale);
    return {.day_name = ::nl_langinfo_l(days.at(weekday), open.get()),
            .month_name = ::nl_langinfo_l(months.at(month - 1), open.get())};
}

} // namespace kestrum
