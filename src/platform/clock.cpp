#include "platform/clock.h"

#include "platform/system_clock.h"

#include <algorithm>
#include <charconv>
#include <chrono>

namespace kestrum {

namespace {

std::chrono::year_month_day Day_Of(const Moment& moment) {
    return {std::chrono::year(moment.year), std::chrono::month(static_cast<unsigned>(moment.month)),
            std::chrono::day(static_cast<unsigned>(moment.day))};
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
    if (moment.hour > 23 || moment.minute > 59 || moment.second > 59 || !Day_Of(moment).ok()) {
        return false;
    }
    stopped_ = moment;
    return true;
}

bool Clock::Speak(const std::string& locale) {
    const std::optional<std::string> found = Locale_Of_System(locale == "en" ? "C" : locale);
    locale_ = found.value_or(locale_);
    return found.has_value();
}

Moment Clock::Now() const {
    using std::chrono::system_clock;
    Moment moment =
        stopped_ ? *stopped_ : Local_Moment(system_clock::to_time_t(system_clock::now()));
    const std::chrono::weekday weekday(std::chrono::sys_days(Day_Of(moment)));
    Calendar_Words words =
        Words_Of(locale_, weekday.c_encoding(), static_cast<unsigned>(moment.month));
    moment.day_name = std::move(words.day_name);
    moment.month_name = std::move(words.month_name);
    return moment;
}

} // namespace kestrum
