#include "chart/end_labels.h"

#include <algorithm>

namespace kestrum {

void Spread(std::vector<End_Label>& labels, double line_height, double top, double bottom) {
    std::ranges::stable_sort(labels, {}, &End_Label::wanted);

    // Groups of touching labels; a group stands with its middle where its members want theirs.
    struct Group {
        double sum = 0; // of the places that the members want for the first of them
        std::size_t count = 0;

        [[nodiscard]] double First() const { return sum / static_cast<double>(count); }
    };

    std::vector<Group> groups;
    const auto first_of = [&](const Group& group) {
        const double height = static_cast<double>(group.count - 1) * line_height;
        return std::max(top, std::min(group.First(), bottom - height));
    };
    for (const End_Label& label : labels) {
        groups.push_back({.sum = label.wanted, .count = 1});
        while (groups.size() > 1) {
            const Group last = groups.back();
            Group& before = groups[groups.size() - 2];
            const double span = static_cast<double>(before.count) * line_height;
            if (first_of(before) + span <= first_of(last)) {
                break;
            }
            before.sum += last.sum - static_cast<double>(last.count) * span;
            before.count += last.count;
            groups.pop_back();
        }
    }
    std::size_t at = 0;
    for (const Group& group : groups) {
        for (std::size_t member = 0; member < group.count; ++member) {
            labels[at].place = first_of(group) + static_cast<double>(member) * line_height;
            ++at;
        }
    }
}

} // namespace kestrum
