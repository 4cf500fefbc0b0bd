#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrum {

/// A moment of local time.
struct Moment {
    int year = 0;
    int month = 1; // 1 to 12
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    /// In the language of the clock, as its locale writes them.
    std::string day_name{};
    std::string month_name{};
};

/// Tells the time, with days and months in the user's language.
class Clock {
public:
    /// The clock stands still at a moment "YYYY-MM-DDTHH:MM:SS". False when there is no such one.
    [[nodiscard]] bool Stop_At(std::string_view text);

    /// Days and months come in the language of a locale of the system, "de" or "de_DE.UTF-8"; "en"
    /// is always there, and an empty name is the user's own. False when the system has none such.
    [[nodiscard]] bool Speak(const std::string& locale);

    [[nodiscard]] Moment Now() const;

private:
    std::optional<Moment> stopped_;
    std::string locale_ = "C";
};

} // namespace kestrum
