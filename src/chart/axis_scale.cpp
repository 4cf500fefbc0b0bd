#include "chart/axis_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrum {

namespace {

constexpr double hair = 1e-6; // of a step; as far beyond a tick an axis needs no step of its own

} // namespace

std::vector<double> Axis_Scale::Ticks() const {
    std::vector<double> ticks;
    const auto first = static_cast<long long>(std::ceil(low / step - hair));
    const auto last = static_cast<long long>(std::floor(high / step + hair));
    for (long long count = first; count <= last; ++count) {
        ticks.push_back(static_cast<double>(count) * step);
    }
    return ticks;
}

Axis_Scale Exact_Scale(double low, double high, int about_steps) {
    if (!(high > low)) {
        high = low + (low == 0 ? 1 : std::abs(low) / 2);
    }
    constexpr double tens = 10;
    const double rough = (high - low) / about_steps;
    const double power = std::floor(std::log10(rough));
    const double unit = std::pow(tens, power);

    struct Round_Step {
        double size;
        int more_decimals;
    };

    constexpr std::array sizes{Round_Step{1, 0}, Round_Step{2, 0}, Round_Step{2.5, 1},
                               Round_Step{5, 0}, Round_Step{10, -1}};
    const auto* const found = std::ranges::find_if(
        sizes, [&](const Round_Step& size) { return size.size * unit >= rough * (1 - 1e-9); });
    const Round_Step& round = found == sizes.end() ? sizes.back() : *found;
    return {.low = low,
            .high = high,
            .step = round.size * unit,
            .decimals = std::max(0, round.more_decimals - static_cast<int>(power))};
}

Axis_Scale Round_Scale(double low, double high, int about_steps) {
    Axis_Scale scale = Exact_Scale(low, high, about_steps);
    scale.low = std::floor(scale.low / scale.step + hair) * scale.step;
    scale.high = std::ceil(scale.high / scale.step - hair) * scale.step;
    return scale;
}

Axis_Scale Snug_Scale(double low, double high, int about_steps) {
    Axis_Scale best = Round_Scale(low, high, about_steps);
    for (const int steps : {about_steps + 1, about_steps + 2, std::max(2, about_steps - 1)}) {
        const Axis_Scale scale = Round_Scale(low, high, steps);
        if (scale.high - scale.low < (best.high - best.low) * (1 - hair)) {
            best = scale;
        }
    }
    return best;
}

} // namespace kestrum
