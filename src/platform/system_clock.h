#pragma once

#include "platform/clock.h"

#include <cstdint>

namespace kestrum {

// What the system knows of time and languages; for the clock and the file store.

/// The local time so many seconds after 1970 began in universal time, without names. Its month is 0
/// for one that the system's calendar does not hold.
[[nodiscard]] Moment Local_Moment(std::int64_t seconds);

/// The name under which the system has a locale ("de", "de_DE.UTF-8", "C" for plain English; an
/// empty one is the user's own); nothing when it has none such.
[[nodiscard]] std::optional<std::string> Locale_Of_System(const std::string& name);

struct Calendar_Words {
    std::string day_name;
    std::string month_name;
};

/// A day of the week, from Sunday as 0 on, and a month, from 1 on, in a locale of the system.
[[nodiscard]] Calendar_Words Words_Of(const std::string& locale, unsigned weekday, unsigned month);

} // namespace kestrum
