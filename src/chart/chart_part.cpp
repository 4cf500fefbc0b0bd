#include "chart/chart_part.h"

#include <algorithm>

namespace kestrum {

namespace {

/// One direction of a part.
struct Span {
    double from = 0;
    double to = 0;

    [[nodiscard]] double Length() const { return to - from; }
};

Span Within(Span span, const Span& whole) {
    const double length = std::min(span.Length(), whole.Length());
    const double from = std::clamp(span.from, whole.from, whole.to - length);
    // What is as long as the whole is the whole, whatever the last digit says.
    return length >= whole.Length() ? whole : Span{.from = from, .to = from + length};
}

Span Zoomed(const Span& span, const Span& whole, double about, double zoom) {
    constexpr double most = 200;
    const double wanted = span.Length() / zoom;
    const double length = std::clamp(wanted, whole.Length() / most, whole.Length());
    const double share = (about - span.from) / span.Length();
    return Within({.from = about - share * length, .to = about + (1 - share) * length}, whole);
}

Span Moved(const Span& span, const Span& whole, double by) {
    return Within({.from = span.from + by, .to = span.to + by}, whole);
}

Span Lifts_Of(const Chart_Part& part) {
    return {.from = part.first_lift, .to = part.last_lift};
}

Span Values_Of(const Chart_Part& part) {
    return {.from = part.low, .to = part.high};
}

Chart_Part Part_Of(const Span& lifts, const Span& values) {
    return {.first_lift = lifts.from, .last_lift = lifts.to, .low = values.from, .high = values.to};
}

} // namespace

Chart_Part Zoomed(const Chart_Part& part, const Chart_Part& whole, const Lift_Point& about,
                  const Chart_Zoom& zoom) {
    return Part_Of(Zoomed(Lifts_Of(part), Lifts_Of(whole), about.lift, zoom.lifts),
                   Zoomed(Values_Of(part), Values_Of(whole), about.value, zoom.values));
}

Chart_Part Moved(const Chart_Part& part, const Chart_Part& whole, const Lift_Point& by) {
    return Part_Of(Moved(Lifts_Of(part), Lifts_Of(whole), by.lift),
                   Moved(Values_Of(part), Values_Of(whole), by.value));
}

} // namespace kestrum
