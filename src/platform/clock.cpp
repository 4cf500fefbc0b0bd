#include "platform/clock.h"

#include <algorithm>
#include <array>
#include <charconv>
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

/// The calendar of the system knows the days of a month and of the week. False for a day that is
/// in no calendar.
bool Find_Weekday(const Moment& moment, std::tm& parts) {
    constexpr int first_year = 1900;
    constexpr int noon = 12; // no change to summer time takes the day away
    parts = {};
    parts.tm_year = moment.year - first_year;
    parts.tm_mon = moment.month - 1;
    parts.tm_mday = moment.day;
    const std::tm asked = parts;
    parts.tm_hour = noon;
    parts.tm_isdst = -1;
    return std::mktime(&parts) != -1 && parts.tm_mday == asked.tm_mday &&
           parts.tm_mon == asked.tm_mon && parts.tm_year == asked.tm_year;
}

Moment Present_Moment() {
    constexpr int first_year = 1900;
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ::localtime_r(&now, &parts);
    return {.year = parts.tm_year + first_year,
            .month = parts.tm_mon + 1,
            .day = parts.tm_mday,
            .hour = parts.tm_hour,
            .minute = parts.tm_min,
            .second = parts.tm_sec};
}

/// Takes the digits that a pattern wants off the front of a text.
int Taken_Number(std::string_view& text, std::size_t digits) {
    int number = 0;
    static_cast<void>(std::from_chars(text.data(), text.data() + digits, number));
    text.remove_prefix(std::min(digits + 1, text.size()));
    return number;
}

} // namespace

bool Clock::Stop_At(std::string_view text) {
    constexpr std::string_view pattern = "0000-00-00T00:00:00";
    const bool fits =
        text.size() == pattern.size() &&
        std::equal(text.begin(), text.end(), pattern.begin(), [](char given, char wanted) {
            return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
        });
    if (!fits) {
        return false;
    }
    Moment moment;
    moment.year = Taken_Number(text, 4);
    moment.month = Taken_Number(text, 2);
    moment.day = Taken_Number(text, 2);
    moment.hour = Taken_Number(text, 2);
    moment.minute = Taken_Number(text, 2);
    moment.second = Taken_Number(text, 2);
    std::tm parts{};
    if (moment.hour > 23 || moment.minute > 59 || moment.second > 59 ||
        !Find_Weekday(moment, parts)) {
        return false;
    }
    stopped_ = moment;
    return true;
}

bool Clock::Speak(const std::string& locale) {
    const std::string name = locale == "en" ? "C" : locale;
    std::string country = name; // "de_DE"
    std::ranges::transform(country, country.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    const std::array candidates{name, name + ".UTF-8", name + "_" + country + ".UTF-8"};
    const auto* const found = std::ranges::find_if(
        candidates, [](const std::string& candidate) { return Open_Locale(candidate) != nullptr; });
    if (found == candidates.end()) {
        return false;
    }
    locale_ = *found;
    return true;
}

Moment Clock::Now() const {
    static constexpr std::array days{DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7};
    static constexpr std::array months{MON_1, MON_2, MON_3, MON_4,  MON_5,  MON_6,
                                       MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};
    Moment moment = stopped_ ? *stopped_ : Present_Moment();
    std::tm parts{};
    static_cast<void>(Find_Weekday(moment, parts));
    const Locale locale = Open_Locale(locale_);
    moment.day_name =
        ::nl_langinfo_l(days.at(static_cast<std::size_t>(parts.tm_wday)), locale.get());
    moment.month_name =
        ::nl_langinfo_l(months.at(static_cast<std::size_t>(moment.month - 1)), locale.get());
    return moment;
}

} // namespace kestrum
