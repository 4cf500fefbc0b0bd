#include "library/library_order.h"

#include "base/numeric_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kestrum {

namespace {

constexpr double class_width = 20; // cubic centimetres, about a step of a head's series
constexpr int open_group = -1;
constexpr int no_class = std::numeric_limits<int>::max();

/// What a test is ordered by.
struct Key {
    int group = 0;
    int rank = 0; // 1 without a value, 2 unreadable
    Library_Value value;
    const Library_Entry* entry = nullptr;
};

int Group_Of(const Library_Entry& entry, bool by_port_volume) {
    if (entry.sheet != 0) {
        return open_group;
    }
    if (!by_port_volume) {
        return 0;
    }
    const double volume = entry.figures.port_volume.value_or(-1);
    const double number = std::floor(volume / class_width);
    return number >= 0 && number < no_class ? static_cast<int>(number) : no_class;
}

Key Key_Of(const Library_Entry& entry, const Library_Order& order) {
    Key key{
        .group = Group_Of(entry, order.by_port_volume), .rank = 0, .value = {}, .entry = &entry};
    if (order.sort != nullptr) {
        key.value = Value_In(*order.sort, entry);
    }
    const bool has_value = !std::holds_alternative<std::monostate>(key.value);
    key.rank = entry.problem ? 2 : has_value ? 0 : 1;
    return key;
}

bool Comes_Before(const Key& a, const Key& b, bool descending) {
    if (a.group != b.group) {
        return a.group < b.group;
    }
    if (a.rank != b.rank) {
        return a.rank < b.rank;
    }
    if (a.value != b.value) {
        return descending ? b.value < a.value : a.value < b.value;
    }
    return a.entry->file < b.entry->file;
}

std::string Heading_Of(int group, std::size_t tests) {
    const Numeric_Text numbers;
    const double from = group * class_width;
    const std::string words = group == open_group ? "Open sheets"
                              : group == no_class ? "No port volume"
                                                  : "Port " + numbers.Plain(from) + " to " +
                                                        numbers.Plain(from + class_width) + " cc";
    return words + "  (" + numbers.Plain(static_cast<double>(tests)) + ")";
}

} // namespace

std::vector<Library_Row> Rows_In_Order(std::span<const Library_Entry> sheets,
                                       std::span<const Library_Entry> files,
                                       const Library_Order& order) {
    std::vector<Key> keys;
    keys.reserve(sheets.size() + files.size());
    for (const std::span<const Library_Entry> entries : {sheets, files}) {
        for (const Library_Entry& entry : entries) {
            if (order.words.empty() || Shows_Words(entry, order.words)) {
                keys.push_back(Key_Of(entry, order));
            }
        }
    }
    std::ranges::sort(keys, [&order](const Key& a, const Key& b) {
        return Comes_Before(a, b, order.descending);
    });
    std::vector<Library_Row> rows;
    rows.reserve(keys.size());
    for (auto at = keys.begin(); at != keys.end();) {
        const auto end =
            std::find_if(at, keys.end(), [&at](const Key& key) { return key.group != at->group; });
        if (order.by_port_volume) {
            rows.push_back({.entry = nullptr,
                            .heading = Heading_Of(at->group, static_cast<std::size_t>(end - at))});
        }
        for (; at != end; ++at) {
            rows.push_back({.entry = at->entry, .heading = {}});
        }
    }
    return rows;
}

} // namespace kestrum
